import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// "New Category": what is typed stays in the controller, so "Cancel" and coming back keep it. "Add"
// closes the sheet only when the store took the category.
Popup {
    id: root

    required property SettingsController controller

    objectName: "newCategorySheet"
    modal: true
    focus: true
    anchors.centerIn: Overlay.overlay
    width: 420
    padding: 20
    closePolicy: Popup.CloseOnEscape

    onOpened: form.focusName()

    function add() {
        if (root.controller.add())
            root.close()
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: Theme.margin
        Accessible.role: Accessible.Dialog
        Accessible.name: "New Category"

        Text {
            text: "New Category"
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
            iconLabel: "Icon (emoji)"
            icon: root.controller.newIcon
            name: root.controller.newName
            productivity: root.controller.newProductivity
            onIconChanged: root.controller.newIcon = icon
            onNameChanged: root.controller.newName = name
            onProductivityChanged: root.controller.newProductivity = productivity
            onAccepted: root.add()
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
                objectName: "add"
                text: "Add"
                highlighted: true
                enabled: root.controller.canAdd
                Accessible.name: text
                Accessible.onPressAction: clicked()
                onClicked: root.add()
            }
        }
    }
}
