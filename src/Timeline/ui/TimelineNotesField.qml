import QtQuick
import QtQuick.Controls
import Larkspan

// A bordered notes field growing from two to four lines.
ScrollView {
    id: notes

    required property TimelineController controller
    property alias placeholderText: area.placeholderText

    implicitHeight: Math.min(Math.max(area.implicitHeight, 2 * area.font.pixelSize * 1.5 + 16),
                             4 * area.font.pixelSize * 1.5 + 16)

    TextArea {
        id: area
        objectName: "notesField"
        text: notes.controller.sheet.notes
        wrapMode: TextArea.Wrap
        font.pixelSize: Theme.fontBody
        Accessible.name: placeholderText
        onTextChanged: if (text !== notes.controller.sheet.notes) notes.controller.setSheetNotes(text)
        background: Rectangle {
            radius: 6
            color: palette.base
            border.width: area.activeFocus ? 2 : 1
            border.color: area.activeFocus ? palette.highlight : Theme.border
        }
    }
}
