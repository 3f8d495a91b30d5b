import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The dashboard's focus tab: the timer above, today's tasks below, the settings sheet over both. The
// space bar presses the main timer button unless the keyboard focus is on a field or a button, which
// take the space themselves, or the sheet is open.
Item {
    id: root

    required property FocusController controller

    readonly property bool spaceTaken: Window.activeFocusItem instanceof TextInput
                                       || Window.activeFocusItem instanceof AbstractButton

    Component.onCompleted: controller.loadTasks()

    Shortcut {
        sequence: "Space"
        enabled: root.visible && !root.spaceTaken && !settingsSheet.opened
        onActivated: root.controller.toggleTimer()
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.leftMargin: 28
        anchors.rightMargin: 28
        anchors.topMargin: 20
        anchors.bottomMargin: 12
        spacing: Theme.spacingLarge

        FocusTimerSection {
            Layout.fillWidth: true
            controller: root.controller
            onSettingsRequested: settingsSheet.open()
        }
        Divider {}
        FocusTaskSection {
            Layout.fillWidth: true
            Layout.fillHeight: true
            controller: root.controller
        }
    }

    TimerSettingsSheet {
        id: settingsSheet
        objectName: "timerSettingsSheet"
        controller: root.controller
    }
}
