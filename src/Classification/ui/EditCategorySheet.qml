import QtQuick
import Larkspan

// "Edit Category" for one category: its name, icon and productivity, starting from what is stored.
// "Save" closes the sheet only when the store took the change; "Cancel" and Escape drop it.
CategorySheet {
    id: root

    // The category being edited.
    property var categoryID: 0

    // Opens the sheet for the category of `row`, a row of the list.
    function edit(row) {
        categoryID = row.categoryID
        form.name = row.name
        form.icon = row.emoji
        form.productivity = row.productivity
        open()
    }

    objectName: "editCategorySheet"
    title: "Edit Category"
    iconLabel: "Icon"
    confirmText: "Save"
    canConfirm: controller.canConfirm(form.name)
    onConfirmRequested: if (controller.save(categoryID, form.name, form.icon, form.productivity)) close()
}
