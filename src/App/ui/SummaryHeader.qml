import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The popover's header: "Today" over the date on the left; once a load has given a summary, the
// tracked total over "tracked" on the right.
RowLayout {
    id: header

    required property QuickSummaryController controller

    Layout.fillWidth: true
    Layout.leftMargin: Theme.margin
    Layout.rightMargin: Theme.margin
    Layout.topMargin: 10
    Layout.bottomMargin: 8
    spacing: Theme.spacing

    ColumnLayout {
        spacing: 1
        Layout.fillWidth: true
        Label {
            text: header.controller.labels.today
            font.pixelSize: Theme.fontHeadline
            font.weight: Font.Bold
        }
        Label {
            objectName: "dateText"
            text: header.controller.day.dateText
            color: Theme.secondaryText
            font.pixelSize: Theme.fontCaption
            elide: Text.ElideRight
            Layout.fillWidth: true
        }
    }
    ColumnLayout {
        visible: header.controller.day.totalText !== ""
        spacing: 1
        Label {
            objectName: "totalText"
            text: header.controller.day.totalText
            font.pixelSize: Theme.fontHeadline
            font.weight: Font.Bold
            Layout.alignment: Qt.AlignRight
        }
        Label {
            text: header.controller.labels.tracked
            color: Theme.secondaryText
            font.pixelSize: Theme.fontCaption
            Layout.alignment: Qt.AlignRight
        }
    }
}
