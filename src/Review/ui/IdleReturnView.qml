import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The welcome-back card: how long the user was away, and what that time was. It stays until
// answered; "Dismiss" answers "Break".
PromptCard {
    id: root

    required property IdleReturnController controller

    implicitWidth: 340
    implicitHeight: 200

    // Once the person has brought the card to the keyboard, Escape answers as "Dismiss" does.
    Shortcut {
        sequence: StandardKey.Cancel
        onActivated: root.controller.dismiss()
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
                name: "moon.zzz.fill"
                color: Theme.blue
                size: 16
            }
            Label {
                Layout.fillWidth: true
                text: "Welcome back!"
                font.pixelSize: 13
                font.weight: Font.DemiBold
                elide: Text.ElideRight
            }
        }

        Label {
            objectName: "message"
            Layout.fillWidth: true
            text: root.controller.message
            font.pixelSize: 11
            color: Theme.secondaryText
            wrapMode: Text.Wrap
            maximumLineCount: 2
            elide: Text.ElideRight
        }

        // Three equal columns, however many buttons there are.
        Grid {
            id: grid
            objectName: "optionGrid"
            Layout.fillWidth: true
            columns: 3
            spacing: 6
            Repeater {
                model: root.controller.options
                PromptChoiceButton {
                    id: option
                    required property int index
                    required property string label
                    required emoji
                    objectName: "option-" + index
                    width: (grid.width - 2 * grid.spacing) / 3
                    text: label
                    onClicked: root.controller.choose(option.index)
                }
            }
        }

        Item {
            Layout.fillHeight: true
        }

        PromptTextButton {
            objectName: "dismiss"
            Layout.alignment: Qt.AlignHCenter
            text: "Dismiss"
            onClicked: root.controller.dismiss()
        }
    }
}
