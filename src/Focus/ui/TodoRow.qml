import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// One task: the active bar, the done button, the title (a click makes the task active or no longer
// active; a half-second press, a double click or F2 renames it: Return keeps the new title, Escape
// or leaving the field drops it), the badge of its finished focus sessions, and delete. A divider
// closes the row.
Rectangle {
    id: row

    required property var taskID
    required property int index
    required property string title
    required property int pomodoroCount
    required property bool isCompleted
    required property bool isActive
    required property color accentColor
    required property var labels

    property bool isEditing: false

    signal select()
    signal toggleDone()
    signal deleteTask()
    signal rename(string title)

    function startEditing() {
        editField.text = title
        isEditing = true
        editField.forceActiveFocus()
        editField.selectAll()
    }

    objectName: "taskRow" + index
    // The title takes the keyboard back from a field that goes away.
    onIsEditingChanged: if (!isEditing && editField.activeFocus) titleArea.forceActiveFocus()
    implicitHeight: Math.max(44, content.implicitHeight + 14)
    color: isActive ? Theme.tint(accentColor, Theme.selectedRow) : "transparent"
    Behavior on color { ColorAnimation { duration: 200 } }

    Rectangle {
        width: 3
        height: parent.height
        color: row.isActive ? row.accentColor : "transparent"
        Behavior on color { ColorAnimation { duration: 200 } }
    }

    RowLayout {
        id: content
        anchors.fill: parent
        anchors.leftMargin: 8
        anchors.rightMargin: 4
        spacing: Theme.spacing

        ToolButton {
            objectName: "taskDone" + row.index
            icon.source: Icons.source(row.isCompleted ? "checkmark.circle.fill" : "circle")
            icon.color: row.isCompleted ? Theme.secondaryText : row.accentColor
            icon.width: 18
            icon.height: 18
            display: AbstractButton.IconOnly
            implicitWidth: 30
            implicitHeight: 30
            Accessible.name: (row.isCompleted ? qsTr("Mark as not done: %1") : qsTr("Mark as done: %1"))
                                 .arg(titleLabel.text.substring(0, 200))
            Accessible.onPressAction: clicked()
            onClicked: row.toggleDone()
        }

        TextField {
            id: editField
            objectName: "taskEdit" + row.index
            Layout.fillWidth: true
            visible: row.isEditing
            placeholderText: row.labels.taskTitlePrompt
            Accessible.name: row.labels.taskTitlePrompt
            onAccepted: {
                row.isEditing = false
                row.rename(text)
            }
            Keys.onEscapePressed: row.isEditing = false
            onActiveFocusChanged: if (!activeFocus) row.isEditing = false
        }

        Item {
            id: titleArea
            objectName: "taskTitle" + row.index
            Layout.fillWidth: true
            Layout.fillHeight: true
            visible: !row.isEditing
            implicitHeight: titleLabel.implicitHeight
            activeFocusOnTab: true
            Accessible.role: Accessible.Button
            Accessible.name: titleLabel.text.substring(0, 200)
            Accessible.description: row.isActive ? qsTr("Active task") : ""
            Accessible.onPressAction: row.select()
            Keys.onReturnPressed: row.select()
            Keys.onEnterPressed: row.select()
            Keys.onPressed: event => {
                if (event.key === Qt.Key_F2) {
                    row.startEditing()
                    event.accepted = true
                }
            }

            Label {
                id: titleLabel
                anchors.left: parent.left
                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                text: row.title
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                maximumLineCount: 2
                elide: Text.ElideRight
                font.pixelSize: Theme.fontBody
                font.strikeout: row.isCompleted
                color: row.isCompleted ? Theme.secondaryText : Theme.primaryText
            }
            Rectangle {
                anchors.fill: parent
                anchors.margins: -2
                visible: titleArea.activeFocus
                color: "transparent"
                radius: 4
                border.width: 2
                border.color: palette.highlight
            }
            MouseArea {
                anchors.fill: parent
                pressAndHoldInterval: 500
                onClicked: row.select()
                onDoubleClicked: row.startEditing()
                onPressAndHold: row.startEditing()
            }
        }

        Rectangle {
            objectName: "taskBadge" + row.index
            visible: row.pomodoroCount >= 1
            implicitWidth: badgeRow.implicitWidth + 10
            implicitHeight: badgeRow.implicitHeight + 4
            radius: height / 2
            color: Theme.tint(Theme.red, Theme.faintWash)
            Accessible.role: Accessible.StaticText
            Accessible.name: qsTr("%1 pomodoros").arg(row.pomodoroCount)
            Row {
                id: badgeRow
                anchors.centerIn: parent
                spacing: 2
                EmojiLabel {
                    text: row.labels.tomato
                    font.pixelSize: Theme.fontCaption
                    width: implicitWidth
                }
                Label {
                    text: row.pomodoroCount
                    color: Theme.tint(Theme.red, Theme.badgeText)
                    font.pixelSize: Theme.fontCaption
                    font.weight: Font.DemiBold
                }
            }
        }

        ToolButton {
            objectName: "taskDelete" + row.index
            icon.source: Icons.source("xmark")
            icon.color: Theme.tertiaryText
            icon.width: 12
            icon.height: 12
            display: AbstractButton.IconOnly
            implicitWidth: 28
            implicitHeight: 28
            Accessible.name: qsTr("Delete: %1").arg(titleLabel.text.substring(0, 200))
            Accessible.onPressAction: clicked()
            onClicked: row.deleteTask()
        }
    }

    Divider {
        anchors.bottom: parent.bottom
        width: parent.width
    }
}
