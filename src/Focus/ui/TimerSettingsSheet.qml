import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// "Timer Settings": a stepper per length and the cycle. A step changes the timer at once (a running
// clock takes it at its next tick); "Done" saves and shows it on an idle clock. Escape or a click
// outside closes the sheet without saving; the values stay for this run.
Popup {
    id: sheet

    required property FocusController controller

    parent: Overlay.overlay
    anchors.centerIn: parent
    width: 360
    modal: true
    focus: true
    padding: 20
    closePolicy: Popup.CloseOnEscape | Popup.CloseOnPressOutside

    background: Rectangle {
        color: palette.window
        radius: 12
        border.width: 1
        border.color: Theme.border
    }

    contentItem: ColumnLayout {
        spacing: 14
        Accessible.role: Accessible.Dialog
        Accessible.name: sheet.controller.labels.settingsTitle

        Text {
            Accessible.role: Accessible.Heading
            Accessible.name: text
            text: sheet.controller.labels.settingsTitle
            color: Theme.primaryText
            font.pixelSize: Theme.fontHeadline
            font.weight: Font.DemiBold
        }

        Repeater {
            model: sheet.controller.settingRows
            RowLayout {
                id: settingRow
                required property int index
                required property string label
                required property int value
                required property int lowest
                required property int highest
                required property int step
                required property string unit
                Layout.fillWidth: true
                Label {
                    Layout.fillWidth: true
                    text: settingRow.label
                    color: Theme.primaryText
                    font.pixelSize: Theme.fontBody
                }
                SpinBox {
                    objectName: "setting" + settingRow.index
                    from: settingRow.lowest
                    to: settingRow.highest
                    stepSize: settingRow.step
                    value: settingRow.value
                    textFromValue: value => value + " " + settingRow.unit
                    implicitWidth: 150
                    Accessible.name: settingRow.label
                    onValueModified: sheet.controller.setSetting(settingRow.index, value)
                }
            }
        }

        Button {
            objectName: "settingsDone"
            Layout.alignment: Qt.AlignRight
            text: sheet.controller.labels.done
            highlighted: true
            Accessible.name: text
            Accessible.onPressAction: clicked()
            onClicked: {
                sheet.controller.applySettings()
                sheet.close()
            }
        }
    }
}
