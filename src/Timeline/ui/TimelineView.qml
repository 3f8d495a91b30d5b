import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The day screen: the header with the day's navigation, the filter bar, the day as a list of blocks
// or as the canvas, and at the right the panel of the selection, sliding in. ← and → step a day, Home
// goes to today, Escape closes the panel, Delete removes the selected row.
FocusScope {
    id: root

    required property TimelineController controller
    readonly property bool panelShown: controller.panel.shown

    implicitWidth: 860
    implicitHeight: 740
    focus: true
    Component.onCompleted: controller.load()

    Keys.onLeftPressed: controller.previousDay()
    Keys.onRightPressed: controller.nextDay()
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Home) {
            controller.goToday()
        } else if (event.key === Qt.Key_Escape && root.panelShown) {
            controller.closePanel()
        } else if (event.key === Qt.Key_Delete && controller.listMode && root.panelShown) {
            controller.deletePanelPrimary()
        } else {
            return
        }
        event.accepted = true
    }

    Rectangle {
        anchors.fill: parent
        color: palette.base
    }

    RowLayout {
        anchors.fill: parent
        spacing: 0

        ColumnLayout {
            Layout.fillWidth: true
            Layout.fillHeight: true
            spacing: 0

            TimelineDayHeader {
                Layout.fillWidth: true
                Layout.margins: Theme.spacingLarge
                controller: root.controller
            }
            Divider {
                Layout.fillWidth: true
            }
            TimelineFilterBar {
                Layout.fillWidth: true
                Layout.leftMargin: Theme.margin
                Layout.rightMargin: Theme.spacingLarge
                Layout.topMargin: Theme.spacingSmall
                Layout.bottomMargin: Theme.spacingSmall
                controller: root.controller
            }
            Divider {
                Layout.fillWidth: true
            }

            Item {
                Layout.fillWidth: true
                Layout.fillHeight: true

                ListView {
                    id: list
                    objectName: "activityList"
                    anchors.fill: parent
                    visible: root.controller.listMode
                    clip: true
                    reuseItems: true
                    model: root.controller.rows
                    boundsBehavior: Flickable.StopAtBounds
                    ScrollBar.vertical: ScrollBar {}
                    Accessible.role: Accessible.List
                    Accessible.name: "Activities"
                    delegate: ActivityListRow {
                        controller: root.controller
                        leftPadding: Theme.margin
                        rightPadding: Theme.spacingLarge
                    }
                }
                ColumnLayout {
                    objectName: "emptyState"
                    anchors.centerIn: parent
                    visible: root.controller.listMode && root.controller.loaded && list.count === 0
                    spacing: Theme.spacing
                    SymbolIcon {
                        Layout.alignment: Qt.AlignHCenter
                        name: "clock.badge.questionmark"
                        size: 36
                        color: Theme.secondaryText
                    }
                    Label {
                        Layout.alignment: Qt.AlignHCenter
                        text: "No activities recorded"
                        color: Theme.secondaryText
                    }
                    Button {
                        objectName: "showAll"
                        Layout.alignment: Qt.AlignHCenter
                        visible: root.controller.showsShowAll
                        text: "Show all (remove filter)"
                        focusPolicy: Qt.StrongFocus
                        Accessible.name: text
                        Accessible.onPressAction: clicked()
                        onClicked: root.controller.minDurationFilter = 0
                    }
                }
                TimelineCanvas {
                    objectName: "canvas"
                    anchors.fill: parent
                    visible: !root.controller.listMode
                    controller: root.controller
                }
            }
        }

        Rectangle {
            Layout.fillHeight: true
            implicitWidth: 1
            visible: detail.Layout.preferredWidth > 0
            color: Theme.separator
        }
        TimelineDetailPanel {
            id: detail
            objectName: "detailPanel"
            Layout.fillHeight: true
            Layout.preferredWidth: root.panelShown ? 290 : 0
            visible: Layout.preferredWidth > 0
            clip: true
            controller: root.controller
            Behavior on Layout.preferredWidth {
                NumberAnimation {
                    duration: 180
                    easing.type: Easing.InOutQuad
                }
            }
        }
    }

    EditActivitySheet {
        objectName: "editSheet"
        controller: root.controller
        visible: root.controller.sheet.open && !root.controller.sheet.manual
    }
    ManualEntrySheet {
        objectName: "manualSheet"
        controller: root.controller
        visible: root.controller.sheet.open && root.controller.sheet.manual
    }
}
