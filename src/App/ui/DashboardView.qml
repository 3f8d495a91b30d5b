import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The dashboard window's content: the sidebar (title, live session card, tab list, review button)
// beside the detail area that shows the selected tab's screen.
Rectangle {
    id: root

    required property DashboardController controller

    // The review screen keeps the orange of its button; the others the palette's accent.
    readonly property color detailAccent: controller.shownTab === controller.reviewTab
                                          ? Theme.orange : palette.highlight

    implicitWidth: 1100
    implicitHeight: 740
    color: palette.base

    SplitView {
        anchors.fill: parent
        orientation: Qt.Horizontal

        handle: Rectangle {
            implicitWidth: 1
            color: Theme.separator
        }

        Rectangle {
            objectName: "sidebar"
            SplitView.minimumWidth: 200
            SplitView.preferredWidth: 240
            SplitView.maximumWidth: 360
            color: palette.window

            ColumnLayout {
                anchors.fill: parent
                anchors.margins: 12
                anchors.topMargin: 16
                spacing: 12

                Label {
                    objectName: "sidebarTitle"
                    Layout.leftMargin: 6
                    text: "Larkspan"
                    color: palette.windowText
                    font.pixelSize: Theme.fontTitle
                    font.weight: Font.Bold
                }

                DashboardLiveCard {
                    objectName: "liveCard"
                    Layout.fillWidth: true
                    visible: root.controller.liveCard.shown
                    controller: root.controller
                }

                ColumnLayout {
                    objectName: "tabList"
                    Layout.fillWidth: true
                    spacing: 2

                    Repeater {
                        model: root.controller.tabs

                        DashboardTabRow {
                            id: tabRow
                            objectName: "tab-" + label
                            Layout.fillWidth: true
                            selected: root.controller.shownTab === label
                            onClicked: root.controller.selectedTab = tabRow.label
                        }
                    }
                }

                Rectangle {
                    objectName: "reviewDivider"
                    Layout.fillWidth: true
                    Layout.leftMargin: 6
                    Layout.rightMargin: 6
                    implicitHeight: 1
                    visible: root.controller.reviewButton.shown
                    color: Theme.separator
                }

                DashboardReviewButton {
                    objectName: "reviewButton"
                    Layout.fillWidth: true
                    visible: root.controller.reviewButton.shown
                    controller: root.controller
                }

                Item {
                    Layout.fillHeight: true
                }
            }
        }

        // Each tab's screen comes later; until then the tab says what it will show.
        Item {
            objectName: "detail"
            SplitView.fillWidth: true

            ColumnLayout {
                anchors.centerIn: parent
                width: Math.min(parent.width - 64, 520)
                spacing: 10

                Rectangle {
                    Layout.alignment: Qt.AlignHCenter
                    Layout.bottomMargin: 8
                    implicitWidth: 88
                    implicitHeight: 88
                    radius: 44
                    color: Theme.tint(root.detailAccent, Theme.wash)

                    SymbolIcon {
                        objectName: "detailSymbol"
                        anchors.centerIn: parent
                        name: root.controller.shownSymbol
                        size: 40
                        color: root.detailAccent
                    }
                }
                Text {
                    objectName: "detailTitle"
                    Layout.fillWidth: true
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                    horizontalAlignment: Text.AlignHCenter
                    text: root.controller.shownTab
                    color: Theme.primaryText
                    font.pixelSize: Theme.fontLargeTitle
                    font.weight: Font.DemiBold
                }
                StartAtLoginSwitch {
                    objectName: "startAtLogin"
                    Layout.fillWidth: true
                    visible: root.controller.shownTab === "Settings" && StartAtLoginController.available
                }
                BrowserBridgeStatus {
                    objectName: "browserBridgeStatus"
                    Layout.fillWidth: true
                    Layout.bottomMargin: 12
                    visible: root.controller.shownTab === "Settings"
                }
                Label {
                    objectName: "detailLine"
                    Layout.fillWidth: true
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.Wrap
                    text: root.controller.shownComingLine
                    color: Theme.secondaryText
                    font.pixelSize: 14
                }
            }
        }
    }
}
