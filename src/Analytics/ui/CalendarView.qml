import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The Calendar tab: one month as a grid of days, Sunday first, with the month's summary below it.
// ← and → move the month, Home comes back to this one; a day up to today opens on the timeline.
FocusScope {
    id: root

    required property CalendarController controller

    implicitWidth: 760
    implicitHeight: 720
    focus: true
    Component.onCompleted: controller.showPresentMonth()
    Keys.onLeftPressed: controller.previousMonth()
    Keys.onRightPressed: controller.nextMonth()
    Keys.onPressed: event => {
        if (event.key === Qt.Key_Home) {
            controller.showPresentMonth();
            event.accepted = true;
        }
    }

    ScrollView {
        id: scroll
        anchors.fill: parent
        contentWidth: availableWidth

        ColumnLayout {
            width: scroll.availableWidth
            spacing: Theme.spacingLarge

            RowLayout {
                objectName: "monthHeader"
                Layout.fillWidth: true
                Layout.margins: Theme.margin
                Layout.bottomMargin: 0
                spacing: Theme.spacingSmall

                Text {
                    objectName: "screenTitle"
                    Layout.fillWidth: true
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                    text: qsTr("Calendar")
                    color: Theme.primaryText
                    font.pixelSize: Theme.fontLargeTitle
                    font.weight: Font.DemiBold
                }
                ToolButton {
                    objectName: "previousMonth"
                    icon.source: Icons.source("chevron.left")
                    icon.color: palette.buttonText
                    Accessible.name: qsTr("Previous month")
                    Accessible.onPressAction: clicked()
                    onClicked: root.controller.previousMonth()
                }
                Text {
                    objectName: "monthTitle"
                    Layout.minimumWidth: 150
                    horizontalAlignment: Text.AlignHCenter
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                    text: root.controller.header.title
                    color: Theme.primaryText
                    font.pixelSize: Theme.fontHeadline
                    font.weight: Font.Bold
                }
                ToolButton {
                    objectName: "nextMonth"
                    enabled: root.controller.header.canGoForward
                    icon.source: Icons.source("chevron.right")
                    icon.color: palette.buttonText
                    Accessible.name: qsTr("Next month")
                    Accessible.onPressAction: clicked()
                    onClicked: root.controller.nextMonth()
                }
            }

            GridLayout {
                objectName: "grid"
                Layout.fillWidth: true
                Layout.leftMargin: Theme.margin
                Layout.rightMargin: Theme.margin
                columns: 7
                columnSpacing: 4
                rowSpacing: 4

                Repeater {
                    model: root.controller.weekdays

                    Text {
                        required property string modelData
                        Layout.fillWidth: true
                        Layout.preferredWidth: 1
                        horizontalAlignment: Text.AlignHCenter
                        text: modelData
                        color: Theme.secondaryText
                        font.pixelSize: Theme.fontSmall
                        font.weight: Font.DemiBold
                    }
                }
                Repeater {
                    model: root.controller.days

                    CalendarDayCell {
                        required property int index
                        objectName: "day-" + day
                        Layout.fillWidth: true
                        Layout.preferredWidth: 1
                        Layout.preferredHeight: implicitHeight
                        onClicked: root.controller.pickDay(index)
                    }
                }
            }

            SectionTitle {
                Layout.leftMargin: Theme.margin
                Layout.topMargin: Theme.spacing
                text: qsTr("Month Summary")
            }
            RowLayout {
                objectName: "monthStats"
                Layout.fillWidth: true
                Layout.leftMargin: Theme.margin
                Layout.rightMargin: Theme.margin
                spacing: Theme.spacingLarge

                Repeater {
                    model: root.controller.statCards

                    Rectangle {
                        id: card
                        required property string label
                        required property string value
                        required property color tone
                        objectName: "stat-" + label
                        Layout.fillWidth: true
                        Layout.preferredWidth: 1
                        implicitHeight: 64
                        radius: 10
                        color: Theme.tint(card.tone, Theme.faintWash)
                        Accessible.role: Accessible.StaticText
                        Accessible.name: label + ": " + value

                        ColumnLayout {
                            anchors.centerIn: parent
                            spacing: 2

                            CalendarFigure {
                                objectName: "value"
                                Layout.alignment: Qt.AlignHCenter
                                text: card.value
                                color: card.tone
                                pixelSize: Theme.fontTitle
                                bold: true
                            }
                            Text {
                                Layout.alignment: Qt.AlignHCenter
                                text: card.label
                                color: Theme.secondaryText
                                font.pixelSize: Theme.fontCaption
                            }
                        }
                    }
                }
            }

            SectionTitle {
                Layout.leftMargin: Theme.margin
                Layout.topMargin: Theme.spacing
                visible: root.controller.header.hasCategoryBar
                text: qsTr("Time by Category")
            }
            Item {
                objectName: "categoryBar"
                Layout.fillWidth: true
                Layout.leftMargin: Theme.margin
                Layout.rightMargin: Theme.margin
                implicitHeight: 18
                visible: root.controller.header.hasCategoryBar
                onWidthChanged: root.controller.barWidth = width

                // The track shows where the categories past the sixth would go.
                Rectangle {
                    anchors.fill: parent
                    radius: 4
                    color: Theme.separator
                }
                Row {
                    id: segments
                    anchors.fill: parent
                    clip: true

                    Repeater {
                        model: root.controller.barSegments

                        Rectangle {
                            required property string name
                            required property color tone
                            required property double span
                            required property string duration
                            width: span
                            height: 18
                            color: tone
                            Accessible.role: Accessible.Graphic
                            Accessible.name: name + ": " + duration
                        }
                    }
                }
            }
            Flow {
                objectName: "legend"
                Layout.fillWidth: true
                Layout.leftMargin: Theme.margin
                Layout.rightMargin: Theme.margin
                Layout.bottomMargin: Theme.margin
                visible: root.controller.header.hasCategoryBar
                spacing: Theme.margin

                Repeater {
                    model: root.controller.legend

                    Row {
                        id: entry
                        required property string name
                        required property color tone
                        spacing: Theme.spacingSmall

                        Rectangle {
                            anchors.verticalCenter: parent.verticalCenter
                            width: 6
                            height: 6
                            radius: 3
                            color: entry.tone
                        }
                        Text {
                            text: entry.name
                            color: Theme.secondaryText
                            font.pixelSize: Theme.fontSmall
                            elide: Text.ElideRight
                            width: Math.min(implicitWidth, 200)
                        }
                    }
                }
            }
        }
    }
}
