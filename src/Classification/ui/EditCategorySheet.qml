import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// "Edit Category" for one category: its name, icon and productivity, starting from what is stored.
// "Save" closes the sheet only when the store took the change; "Cancel" and Escape drop it.
Popup {
    id: root

    required property SettingsController controller
    // The category being edited, as its row in the list.
    property var categoryID: 0

    objectName: "editCategorySheet"
    modal: true
    focus: true
    anchors.centerIn: Overlay.overlay
    width: 420
    padding: 20
    closePolicy: Popup.CloseOnEscape

    // Opens the sheet for the category of `row`.
    function edit(row) {
        categoryID = row.categoryID
        form.name = row.name
        form.icon = row.emoji
        form.productivity = row.productivity
        open()
    }

    function save() {
        if (root.controller.save(root.categoryID, form.name, form.icon, form.productivity))
            root.close()
    }

    onOpened: form.focusName()

    ColumnLayout {
        anchors.fill: parent
        spacing: Theme.margin
        Accessible.role: Accessible.Dialog
        Accessible.name: "Edit Category"

        Text {
            text: "Edit Category"
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
            iconLabel: "Icon"
            onAccepted: root.save()
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
                objectName: "save"
                text: "Save"
                highlighted: true
                enabled: root.controller.canConfirm(form.name)
                Accessible.name: text
                Accessible.onPressAction: clicked()
                onClicked: root.save()
            }
        }
    }
}
