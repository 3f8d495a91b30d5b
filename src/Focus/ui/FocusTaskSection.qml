import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The focus tab's lower half: the header with "Clear done" and the add button, the line for a new
// task (Return adds, Escape cancels), and today's tasks in the order they were made, or the empty
// state. Rows take the mode's colour.
ColumnLayout {
    id: section

    required property FocusController controller
    readonly property var labels: controller.labels
    readonly property color accent: controller.timer.color

    spacing: Theme.spacingSmall

    RowLayout {
        Layout.fillWidth: true
        Text {
            Layout.fillWidth: true
            Accessible.role: Accessible.Heading
            Accessible.name: text
            text: section.labels.tasks
            color: Theme.primaryText
            font.pixelSize: Theme.fontHeadline
            font.weight: Font.DemiBold
        }
        Button {
            objectName: "clearDoneButton"
            visible: section.controller.hasCompletedTasks
            flat: true
            text: section.labels.clearDone
            font.pixelSize: Theme.fontSmall
            Accessible.name: text
            Accessible.onPressAction: clicked()
            onClicked: section.controller.clearDoneTasks()
        }
        ToolButton {
            id: addTaskButton
            objectName: "addTaskButton"
            icon.source: Icons.source("plus.circle.fill")
            icon.color: section.accent
            display: AbstractButton.IconOnly
            Accessible.name: section.labels.addTask
            ToolTip.visible: hovered
            ToolTip.text: section.labels.addTask
            Accessible.onPressAction: clicked()
            onClicked: section.controller.startAddingTask()
        }
    }

    Rectangle {
        objectName: "newTaskLine"
        Layout.fillWidth: true
        visible: section.controller.isAddingTask
        implicitHeight: newTaskRow.implicitHeight + 12
        radius: 6
        color: Theme.tint(section.accent, Theme.entryWash)
        // Whenever adding starts, the field takes the keyboard; when it ends, the add button does, so
        // that no hidden field keeps it.
        onVisibleChanged: {
            if (visible)
                newTaskField.forceActiveFocus()
            else if (newTaskField.activeFocus)
                addTaskButton.forceActiveFocus()
        }

        RowLayout {
            id: newTaskRow
            anchors.fill: parent
            anchors.leftMargin: Theme.spacing
            anchors.rightMargin: Theme.spacingSmall
            spacing: Theme.spacing
            SymbolIcon {
                name: "circle"
                color: section.accent
                size: 16
            }
            TextField {
                id: newTaskField
                objectName: "newTaskField"
                Layout.fillWidth: true
                placeholderText: section.labels.newTaskPrompt
                text: section.controller.newTaskTitle
                Accessible.name: section.labels.newTaskPrompt
                // Typing and an assistive tool's edit alike.
                onTextChanged: section.controller.newTaskTitle = text
                onAccepted: section.controller.addTask()
                Keys.onEscapePressed: section.controller.cancelAddingTask()
            }
            Button {
                id: addButton
                objectName: "addButton"
                text: section.labels.add
                enabled: section.controller.canAddTask
                palette.buttonText: Theme.onColor
                Accessible.name: text
                background: Rectangle {
                    implicitHeight: 28
                    implicitWidth: 56
                    radius: 6
                    color: section.accent
                    opacity: !addButton.enabled ? Theme.hollowMark : addButton.down ? Theme.pressedFill : 1
                    border.width: addButton.visualFocus ? 2 : 0
                    border.color: palette.highlight
                }
                Accessible.onPressAction: clicked()
                onClicked: section.controller.addTask()
            }
            Button {
                objectName: "cancelAddButton"
                flat: true
                text: section.labels.cancel
                Accessible.name: text
                Accessible.onPressAction: clicked()
                onClicked: section.controller.cancelAddingTask()
            }
        }
    }

    ColumnLayout {
        objectName: "emptyTasks"
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.alignment: Qt.AlignHCenter | Qt.AlignVCenter
        visible: taskList.count === 0 && !section.controller.isAddingTask
        spacing: Theme.spacing
        Item { Layout.fillHeight: true }
        SymbolIcon {
            Layout.alignment: Qt.AlignHCenter
            name: "checklist"
            color: Theme.tertiaryText
            size: 32
        }
        Label {
            Layout.alignment: Qt.AlignHCenter
            text: section.labels.emptyTasks
            color: Theme.secondaryText
            font.pixelSize: Theme.fontBody
        }
        Button {
            objectName: "addFirstTaskButton"
            Layout.alignment: Qt.AlignHCenter
            flat: true
            text: section.labels.addFirstTask
            palette.buttonText: section.accent
            Accessible.name: text
            Accessible.onPressAction: clicked()
            onClicked: section.controller.startAddingTask()
        }
        Item { Layout.fillHeight: true }
    }

    ListView {
        id: taskList
        objectName: "taskList"
        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: count > 0
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: section.controller.tasks
        Accessible.role: Accessible.List
        Accessible.name: section.labels.tasks
        ScrollBar.vertical: ScrollBar {}

        delegate: TodoRow {
            width: taskList.width
            accentColor: section.accent
            labels: section.labels
            onSelect: section.controller.selectTask(taskID)
            onToggleDone: section.controller.toggleTaskDone(taskID)
            onDeleteTask: section.controller.deleteTask(taskID)
            onRename: title => section.controller.renameTask(taskID, title)
        }
    }
}
