import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The approval card: which category was this activity? Up to six buttons of the most used
// categories, "Skip", and every other category under "More…". It counts down from 45 seconds while
// the pointer is away from it; the controller answers and the shell closes the window.
PromptCard {
    id: root

    required property ApprovalPopupController controller

    implicitWidth: 340
    implicitHeight: 200

    readonly property color secondaryText: Qt.rgba(palette.windowText.r, palette.windowText.g,
                                                   palette.windowText.b, 0.65)
    readonly property color tertiaryText: Qt.rgba(palette.windowText.r, palette.windowText.g,
                                                  palette.windowText.b, 0.45)

    Component.onCompleted: controller.startCountdown()

    HoverHandler {
        onHoveredChanged: root.controller.hovered = hovered
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 14
        spacing: 10

        RowLayout {
            objectName: "titleRow"
            Layout.fillWidth: true
            spacing: 6
            SymbolIcon {
                name: "questionmark.circle.fill"
                color: "#ff9500"
                size: 16
            }
            Label {
                Layout.fillWidth: true
                text: "Quick check-in"
                font.pixelSize: 13
                font.weight: Font.DemiBold
                elide: Text.ElideRight
            }
            Label {
                objectName: "countdown"
                text: root.controller.countdownText
                font.pixelSize: 11
                color: root.tertiaryText
                horizontalAlignment: Text.AlignRight
                // As wide as the widest count, so the row does not shift as digits change.
                Layout.minimumWidth: widest.advanceWidth
                TextMetrics {
                    id: widest
                    font.pixelSize: 11
                    text: "00s"
                }
            }
        }

        Column {
            objectName: "questionRow"
            Layout.fillWidth: true
            spacing: 1
            Label {
                objectName: "activityTitle"
                width: parent.width
                text: root.controller.activityTitle
                textFormat: Text.PlainText
                font.pixelSize: 13
                font.weight: Font.Medium
                elide: Text.ElideRight
                maximumLineCount: 1
            }
            Label {
                text: "What were you doing?"
                font.pixelSize: 11
                color: root.secondaryText
            }
        }

        GridLayout {
            objectName: "categoryGrid"
            Layout.fillWidth: true
            columns: 3
            columnSpacing: 6
            rowSpacing: 6
            Repeater {
                model: root.controller.gridCategories
                PromptChoiceButton {
                    required property var modelData
                    required property int index
                    objectName: "category-" + index
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    emoji: modelData.icon
                    text: modelData.name
                    tint: modelData.color
                    onClicked: root.controller.choose(modelData.id)
                }
            }
        }

        Item {
            Layout.fillHeight: true
        }

        RowLayout {
            objectName: "dismissRow"
            Layout.fillWidth: true
            Button {
                objectName: "skip"
                text: "Skip"
                flat: true
                font.pixelSize: 12
                implicitHeight: 22
                topPadding: 2
                bottomPadding: 2
                onClicked: root.controller.skip()
            }
            Item {
                Layout.fillWidth: true
            }
            Button {
                objectName: "more"
                text: "More\u2026"
                flat: true
                font.pixelSize: 12
                implicitHeight: 22
                topPadding: 2
                bottomPadding: 2
                enabled: root.controller.menuCategories.length > 0
                onClicked: moreMenu.open()

                Menu {
                    id: moreMenu
                    objectName: "moreMenu"
                    y: parent.height - height
                    Repeater {
                        model: root.controller.menuCategories
                        MenuItem {
                            required property var modelData
                            required property int index
                            objectName: "menu-" + index
                            text: modelData.title
                            font.pixelSize: 12
                            implicitHeight: 24
                            onTriggered: root.controller.choose(modelData.id)
                        }
                    }
                }
            }
        }
    }
}
