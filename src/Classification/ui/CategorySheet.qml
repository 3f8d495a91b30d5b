import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// A sheet over the settings tab that edits one category: a title, the category's fields, "Cancel"
// and the confirming button. It closes on "Cancel" or Escape; `confirmed` decides whether a
// confirmation closes it too (the store may refuse, and then the sheet stays with what was typed).
Popup {
    id: root

    required property SettingsController controller
    required property string title
    required property string iconLabel
    required property string confirmText
    property bool canConfirm: true
    property alias form: form

    // Asked on "Add"/"Save" or Return in a field; true when the change was stored.
    signal confirmRequested()

    modal: true
    focus: true
    anchors.centerIn: Overlay.overlay
    width: 440
    padding: 22
    closePolicy: Popup.CloseOnEscape
    onOpened: form.focusName()

    background: Rectangle {
        radius: 12
        color: palette.window
        border.width: 1
        border.color: Theme.border
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: Theme.margin
        Accessible.role: Accessible.Dialog
        Accessible.name: root.title

        Text {
            text: root.title
            color: Theme.primaryText
            font.pixelSize: Theme.fontHeadline
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        CategoryForm {
            id: form
            Layout.fillWidth: true
            controller: root.controller
            iconLabel: root.iconLabel
            onAccepted: if (root.canConfirm) root.confirmRequested()
        }
        RowLayout {
            Layout.fillWidth: true
            Layout.topMargin: Theme.spacingSmall
            spacing: Theme.spacing

            Item {
                Layout.fillWidth: true
            }
            Button {
                objectName: "cancel"
                text: "Cancel"
                Accessible.name: text
                Accessible.onPressAction: clicked()
                onClicked: root.close()
            }
            Button {
                objectName: "confirm"
                text: root.confirmText
                highlighted: true
                enabled: root.canConfirm
                Accessible.name: text
                Accessible.onPressAction: clicked()
                onClicked: root.confirmRequested()
            }
        }
    }
}
