import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The fields a category sheet edits: its icon and name side by side, then its productivity as a
// segmented choice. Return in a field confirms the sheet.
ColumnLayout {
    id: root

    required property SettingsController controller
    required property string iconLabel
    property alias icon: iconField.text
    property alias name: nameField.text
    property int productivity: 0

    signal accepted()

    spacing: Theme.spacingLarge

    function focusName() {
        nameField.forceActiveFocus()
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: Theme.spacing

        TextField {
            id: iconField
            objectName: "iconField"
            Layout.preferredWidth: 110
            placeholderText: root.iconLabel
            font.family: Theme.emojiFont
            horizontalAlignment: Text.AlignHCenter
            selectByMouse: true
            Accessible.name: root.iconLabel
            onAccepted: root.accepted()
        }
        TextField {
            id: nameField
            objectName: "nameField"
            Layout.fillWidth: true
            placeholderText: "Category name"
            selectByMouse: true
            Accessible.name: "Category name"
            onAccepted: root.accepted()
        }
    }

    Label {
        text: "Productivity"
        color: Theme.secondaryText
        font.pixelSize: Theme.fontSmall
    }
    RowLayout {
        objectName: "productivityChoice"
        Layout.fillWidth: true
        spacing: 0

        Repeater {
            model: root.controller.productivityChoices

            Button {
                id: segment
                required property int index
                required property int value
                required property string label

                objectName: "productivity-" + index
                Layout.fillWidth: true
                checked: root.productivity === value
                text: label
                Accessible.name: label
                Accessible.checkable: true
                Accessible.checked: checked
                Accessible.onPressAction: clicked()
                onClicked: root.productivity = segment.value
            }
        }
    }
}
