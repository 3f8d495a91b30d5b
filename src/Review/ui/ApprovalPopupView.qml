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

    // Once the person has brought the card to the keyboard, Escape answers as "Skip" does.
    Shortcut {
        sequence: StandardKey.Cancel
        onActivated: root.controller.skip()
    }

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
            // Fixed heights down the card: 16 + 10 + 30 + 10 + 74 + 10 + 20 fit the 172 inside the padding.
            Layout.preferredHeight: 16
            spacing: 6
            SymbolIcon {
                name: "questionmark.circle.fill"
                color: Theme.orange
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
                color: Theme.tertiaryText
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
            spacing: 0
            Label {
                objectName: "activityTitle"
                width: parent.width
                height: 16
                verticalAlignment: Text.AlignVCenter
                text: root.controller.activityTitle
                textFormat: Text.PlainText
                font.pixelSize: 13
                font.weight: Font.Medium
                elide: Text.ElideRight
                maximumLineCount: 1
            }
            Label {
                height: 14
                verticalAlignment: Text.AlignVCenter
                text: "What were you doing?"
                font.pixelSize: 11
                color: Theme.secondaryText
            }
        }

        // Three equal columns, however many buttons there are.
        Grid {
            id: grid
            objectName: "categoryGrid"
            Layout.fillWidth: true
            // Takes what a short grid leaves, so that the rows above stay put and "Skip" stays low.
            Layout.fillHeight: true
            columns: 3
            spacing: 6
            Repeater {
                model: root.controller.gridCategories
                PromptChoiceButton {
                    id: choice
                    required property int index
                    required property var categoryID
                    required property string name
                    required emoji
                    required tint
                    objectName: "category-" + index
                    width: (grid.width - 2 * grid.spacing) / 3
                    text: name
                    onClicked: root.controller.choose(choice.categoryID)
                }
            }
        }

        RowLayout {
            objectName: "dismissRow"
            Layout.fillWidth: true
            Layout.preferredHeight: 20
            PromptTextButton {
                objectName: "skip"
                // The label, not the button's edge, lines up with the card's content.
                Layout.leftMargin: -leftPadding
                text: "Skip"
                onClicked: root.controller.skip()
            }
            Item {
                Layout.fillWidth: true
            }
            PromptTextButton {
                id: moreButton
                objectName: "more"
                Layout.rightMargin: -rightPadding
                text: "More\u2026"
                enabled: root.controller.menuCategories.count > 0
                onClicked: moreMenu.open()

                Menu {
                    id: moreMenu
                    objectName: "moreMenu"
                    // Opens upwards from the button's right edge, kept inside the small window.
                    x: moreButton.width - width
                    y: moreButton.height - height
                    margins: 6
                    Repeater {
                        model: root.controller.menuCategories
                        MenuItem {
                            id: entry
                            required property int index
                            required property var categoryID
                            required property string name
                            required property string emoji
                            required property string menuTitle
                            objectName: "menu-" + index
                            text: menuTitle
                            Accessible.onPressAction: clicked()
                            font.pixelSize: 12
                            implicitHeight: 26
                            contentItem: Row {
                                leftPadding: 2
                                spacing: 6
                                Text {
                                    anchors.verticalCenter: parent.verticalCenter
                                    text: entry.emoji
                                    textFormat: Text.PlainText
                                    font.family: Theme.emojiFont
                                    font.pixelSize: 13
                                }
                                Text {
                                    anchors.verticalCenter: parent.verticalCenter
                                    width: Math.min(implicitWidth, 200)
                                    text: entry.name
                                    textFormat: Text.PlainText
                                    font: entry.font
                                    color: entry.highlighted ? entry.palette.highlightedText : entry.palette.windowText
                                    elide: Text.ElideRight
                                    maximumLineCount: 1
                                }
                            }
                            onTriggered: root.controller.choose(entry.categoryID)
                        }
                    }
                }
            }
        }
    }
}
