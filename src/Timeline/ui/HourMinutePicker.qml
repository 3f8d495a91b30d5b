import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// A time of day as two menus, the hour ("12 AM" … "11 PM") and the minute in steps of five, over a
// field that takes any minute ("9:37"). `which` says whether it edits the sheet's start (0) or end (1).
ColumnLayout {
    id: picker

    required property TimelineController controller
    required property int which
    required property string label
    readonly property var sheet: controller.sheet

    spacing: 4

    Label {
        text: picker.label
        color: Theme.secondaryText
        font.pixelSize: Theme.fontCaption
    }
    RowLayout {
        spacing: 2
        ComboBox {
            objectName: (picker.which === 0 ? "start" : "end") + "Hour"
            Layout.preferredWidth: 82
            model: picker.controller.pickerHourLabels
            currentIndex: picker.which === 0 ? picker.sheet.startHour : picker.sheet.endHour
            font.pixelSize: Theme.fontSmall
            Accessible.name: picker.label + " hour"
            onActivated: index => picker.controller.setSheetHour(picker.which, index)
        }
        Label {
            text: ":"
            color: Theme.secondaryText
            font.pixelSize: Theme.fontCaption
        }
        ComboBox {
            objectName: (picker.which === 0 ? "start" : "end") + "Minute"
            Layout.preferredWidth: 58
            model: ["00", "05", "10", "15", "20", "25", "30", "35", "40", "45", "50", "55"]
            currentIndex: (picker.which === 0 ? picker.sheet.startMinute : picker.sheet.endMinute) / 5
            font.pixelSize: Theme.fontSmall
            Accessible.name: picker.label + " minute"
            onActivated: index => picker.controller.setSheetMinute(picker.which, index * 5)
        }
    }
    TextField {
        id: field
        objectName: (picker.which === 0 ? "start" : "end") + "Field"
        readonly property string shown: picker.which === 0 ? picker.sheet.startText : picker.sheet.endText
        Layout.preferredWidth: 70
        text: shown
        font.pixelSize: Theme.fontSmall
        horizontalAlignment: Text.AlignHCenter
        validator: RegularExpressionValidator { regularExpression: /\d{0,2}[:.]?\d{0,2}/ }
        Accessible.name: picker.label + " time"
        onEditingFinished: {
            // A time past the other end is refused: the field goes back to the value held.
            picker.controller.setSheetTimeText(picker.which, text)
            text = Qt.binding(() => field.shown)
        }
    }
}
