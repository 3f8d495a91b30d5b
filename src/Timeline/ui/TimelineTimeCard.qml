import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The sheets' "Time" card: start, an arrow, end, and the duration at the right.
Rectangle {
    id: card

    required property TimelineController controller
    default property alias extra: column.data

    implicitHeight: column.implicitHeight + 24
    radius: 8
    color: Theme.tint(Theme.secondaryText, 0.06)

    ColumnLayout {
        id: column
        anchors.fill: parent
        anchors.margins: 12
        spacing: 10

        Label {
            text: "Time"
            font.pixelSize: Theme.fontSmall
            font.weight: Font.DemiBold
        }
        RowLayout {
            spacing: 12
            HourMinutePicker {
                controller: card.controller
                which: 0
                label: "Start"
            }
            SymbolIcon {
                name: "arrow.right"
                color: Theme.secondaryText
                Layout.alignment: Qt.AlignVCenter
            }
            HourMinutePicker {
                controller: card.controller
                which: 1
                label: "End"
            }
            Item {
                Layout.fillWidth: true
            }
            ColumnLayout {
                spacing: 0
                Label {
                    objectName: "sheetDuration"
                    Layout.alignment: Qt.AlignRight
                    text: card.controller.sheet.durationText
                    font.pixelSize: Theme.fontHeadline
                    font.weight: Font.DemiBold
                }
                Label {
                    Layout.alignment: Qt.AlignRight
                    text: "duration"
                    color: Theme.secondaryText
                    font.pixelSize: Theme.fontCaption
                }
            }
        }
    }
}
