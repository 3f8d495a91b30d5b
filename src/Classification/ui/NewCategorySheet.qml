import QtQuick
import Larkspan

// "New Category": what is typed stays in the controller, so "Cancel" and coming back keep it. "Add"
// closes the sheet only when the store took the category.
CategorySheet {
    id: root

    objectName: "newCategorySheet"
    title: "New Category"
    iconLabel: "Icon (emoji)"
    confirmText: "Add"
    canConfirm: controller.canAdd
    form.icon: controller.newIcon
    form.name: controller.newName
    form.productivity: controller.newProductivity
    form.onIconChanged: controller.newIcon = form.icon
    form.onNameChanged: controller.newName = form.name
    form.onProductivityChanged: controller.newProductivity = form.productivity
    onConfirmRequested: if (controller.add()) close()
}
