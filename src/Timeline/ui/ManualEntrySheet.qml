import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// Adds time the tracker could not see: a range, a title, a category and notes.
TimelineSheet {
    id: manual

    saveText: "Add Activity"
    // A fresh sheet waits for its title.
    onVisibleChanged: if (visible) Qt.callLater(titleField.forceActiveFocus)

    Text {
        text: "Add Activity"
        color: Theme.primaryText
        font.pixelSize: Theme.fontTitle
        font.weight: Font.Bold
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    TimelineTimeCard {
        Layout.fillWidth: true
        controller: manual.controller
        RowLayout {
            spacing: 6
            Label {
                text: "Start presets:"
                color: Theme.secondaryText
                font.pixelSize: Theme.fontCaption
            }
            Repeater {
                model: manual.controller.presetLabels
                TimelineCapsuleButton {
                    required property int index
                    required property string modelData
                    objectName: "preset" + index
                    text: modelData
                    onClicked: manual.controller.applyPreset(index)
                }
            }
        }
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 8
        Label {
            text: "What were you doing?"
            font.pixelSize: Theme.fontSmall
            font.weight: Font.DemiBold
        }
        TextField {
            id: titleField
            objectName: "titleField"
            Layout.fillWidth: true
            placeholderText: "e.g. Reading: Clean Code, Meeting with team…"
            text: manual.controller.sheet.entryTitle
            font.pixelSize: Theme.fontBody
            Accessible.name: "What were you doing?"
            onTextChanged: if (text !== manual.controller.sheet.entryTitle) manual.controller.setSheetTitle(text)
            Keys.onReturnPressed: if (manual.controller.sheet.canSave) manual.controller.saveSheet()
        }
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 8
        Label {
            text: "Category"
            font.pixelSize: Theme.fontSmall
            font.weight: Font.DemiBold
        }
        TimelineCategoryGrid {
            Layout.fillWidth: true
            columns: 5
            columnSpacing: 6
            rowSpacing: 6
            cellRadius: 8
            outlineCurrent: true
            model: manual.controller.sheetCategories
            currentID: manual.controller.sheet.categoryID
            otherOpacity: 0.08
            namePrefix: "manualCategory-"
            onPicked: id => manual.controller.setSheetCategory(id)
        }
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 8
        Label {
            text: "Notes (optional)"
            font.pixelSize: Theme.fontSmall
            font.weight: Font.DemiBold
        }
        TimelineNotesField {
            Layout.fillWidth: true
            controller: manual.controller
            placeholderText: "Additional context…"
        }
    }
}
