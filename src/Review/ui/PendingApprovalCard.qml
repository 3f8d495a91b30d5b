import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// One activity waiting for a category: its title, domain and when, "Skip", and a grid of every
// category with the engine's suggestion standing out. A pick settles it and is learned; "Skip" keeps
// the suggestion and teaches nothing.
Rectangle {
    id: card

    required property var activityID
    required property string title
    required property string domain
    required property string appName
    required property string timeText
    required property string durationText
    required property var suggestedID
    required property string description
    // The grid's categories, shared by every card.
    required property var categories

    signal approve(var categoryID)
    signal skip()
    // A control of the card took the keyboard focus: the list brings the card into view.
    signal focusEntered()

    implicitHeight: content.implicitHeight + 32
    radius: 10
    color: palette.base
    border.width: 1
    border.color: Theme.border
    Accessible.role: Accessible.Grouping
    Accessible.name: description

    ColumnLayout {
        id: content
        anchors.fill: parent
        anchors.margins: 16
        spacing: Theme.spacing

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.spacingLarge

            ColumnLayout {
                Layout.fillWidth: true
                spacing: 2

                Label {
                    objectName: "cardTitle"
                    Layout.fillWidth: true
                    // Every card's title starts at the same edge, whatever the script of its text.
                    horizontalAlignment: Text.AlignLeft
                    text: card.title
                    textFormat: Text.PlainText
                    font.pixelSize: Theme.fontBody + 1
                    font.weight: Font.DemiBold
                    color: Theme.primaryText
                    elide: Text.ElideRight
                    maximumLineCount: 1
                }
                Label {
                    objectName: "cardDomain"
                    Layout.fillWidth: true
                    visible: card.domain !== ""
                    text: card.domain
                    textFormat: Text.PlainText
                    font.pixelSize: Theme.fontSmall
                    color: Theme.secondaryText
                    elide: Text.ElideRight
                    maximumLineCount: 1
                }
                RowLayout {
                    Layout.fillWidth: true
                    spacing: 4

                    SymbolIcon {
                        name: "app.badge"
                        size: 12
                        color: Theme.secondaryText
                    }
                    Label {
                        objectName: "cardMeta"
                        Layout.fillWidth: true
                        text: card.appName + "  \u00b7  " + card.timeText + "  \u00b7  " + card.durationText
                        textFormat: Text.PlainText
                        font.pixelSize: Theme.fontCaption
                        color: Theme.secondaryText
                        elide: Text.ElideMiddle
                        maximumLineCount: 1
                    }
                }
            }

            Button {
                objectName: "skip"
                Layout.alignment: Qt.AlignTop
                // The label, not the button's edge, lines up with the grid's right edge.
                Layout.rightMargin: -rightPadding
                flat: true
                text: "Skip"
                font.pixelSize: Theme.fontSmall
                palette.buttonText: Theme.secondaryText
                Accessible.name: "Skip"
                Accessible.description: "Keep the suggested category for " + card.title
                Accessible.onPressAction: clicked()
                onClicked: card.skip()
                onActiveFocusChanged: if (activeFocus) card.focusEntered()
            }
        }

        Divider {}

        Label {
            text: "What is this activity?"
            font.pixelSize: Theme.fontSmall
            color: Theme.secondaryText
        }

        // Four equal columns, however many categories there are.
        Grid {
            id: grid
            objectName: "categoryGrid"
            Layout.fillWidth: true
            columns: 4
            spacing: 6

            Repeater {
                model: card.categories

                PromptChoiceButton {
                    id: choice
                    required property int index
                    required property var categoryID
                    required property string name
                    required emoji
                    required tint
                    readonly property bool suggested: categoryID === card.suggestedID

                    objectName: "category-" + index
                    width: (grid.width - 3 * grid.spacing) / 4
                    implicitHeight: 44
                    text: name
                    restFill: suggested ? Theme.tint(tint, Theme.suggestedFill) : Theme.hover
                    restEdge: suggested ? Theme.tint(tint, Theme.suggestedEdge) : "transparent"
                    Accessible.name: name
                    Accessible.description: suggested ? "Suggested category" : ""
                    onClicked: card.approve(choice.categoryID)
                    onActiveFocusChanged: if (activeFocus) card.focusEntered()
                }
            }
        }
    }
}
