import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// A modal sheet over the screen, 520 wide: its content, then "Cancel" and the save button. The screen
// behind is dimmed and takes no input. Escape cancels; Return saves while saving is possible.
FocusScope {
    id: sheet

    required property TimelineController controller
    property string saveText
    default property alias content: body.data

    anchors.fill: parent
    z: 10
    // Open, it takes the keyboard; closed, it gives it back to the screen.
    onVisibleChanged: visible ? forceActiveFocus() : parent.forceActiveFocus()
    Keys.onEscapePressed: controller.cancelSheet()
    Keys.onReturnPressed: if (controller.sheet.canSave) controller.saveSheet()
    Keys.onEnterPressed: if (controller.sheet.canSave) controller.saveSheet()

    Rectangle {
        anchors.fill: parent
        color: Theme.tint(palette.shadow, 0.35)
        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.AllButtons
            hoverEnabled: true
            onWheel: wheel => wheel.accepted = true
        }
    }

    Rectangle {
        anchors.centerIn: parent
        width: 520
        height: Math.min(column.implicitHeight + 48, sheet.height - 40)
        radius: 12
        color: palette.window
        border.width: 1
        border.color: Theme.border

        ScrollView {
            id: scroller
            anchors.fill: parent
            contentWidth: availableWidth
            clip: true

            ColumnLayout {
                id: column
                x: 24
                y: 24
                width: scroller.availableWidth - 48
                spacing: 18

                ColumnLayout {
                    id: body
                    Layout.fillWidth: true
                    spacing: 18
                }
                RowLayout {
                    Layout.fillWidth: true
                    Layout.bottomMargin: 24
                    Button {
                        objectName: sheet.objectName + "Cancel"
                        text: "Cancel"
                        focusPolicy: Qt.StrongFocus
                        Accessible.name: text
                        Accessible.onPressAction: clicked()
                        onClicked: sheet.controller.cancelSheet()
                    }
                    Item {
                        Layout.fillWidth: true
                    }
                    Button {
                        objectName: sheet.objectName + "Save"
                        text: sheet.saveText
                        highlighted: true
                        enabled: sheet.controller.sheet.canSave
                        focusPolicy: Qt.StrongFocus
                        Accessible.name: text
                        Accessible.onPressAction: clicked()
                        onClicked: sheet.controller.saveSheet()
                    }
                }
            }
        }
    }
}
