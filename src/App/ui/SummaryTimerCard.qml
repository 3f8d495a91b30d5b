import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The Pomodoro timer: a ring filling with the session's progress around the mode's mark, the time
// left over the mode's name, a stop button once started, and the main button (pause while running,
// start or resume otherwise), all in the mode's colour, on a wash of it while running.
Rectangle {
    id: card

    required property QuickSummaryController controller
    readonly property var timer: controller.timer

    objectName: "pomodoroWidget"
    Layout.fillWidth: true
    implicitHeight: pomodoroRow.implicitHeight + 12
    color: Theme.tint(timer.color, timer.backgroundOpacity)

    RowLayout {
        id: pomodoroRow
        anchors.fill: parent
        anchors.leftMargin: Theme.margin
        anchors.rightMargin: Theme.margin
        spacing: Theme.spacingLarge

        ProgressRing {
            id: ring
            objectName: "timerRing"
            Accessible.name: qsTr("%1 session %2 % done").arg(card.timer.modeName)
                                                          .arg(Math.round(100 * Math.min(1, Math.max(0, card.timer.progress))))
            implicitWidth: 38
            implicitHeight: 38
            progress: card.timer.progress
            color: card.timer.color
            EmojiLabel {
                anchors.centerIn: parent
                text: card.timer.modeIcon
                font.pixelSize: 15
            }
        }

        ColumnLayout {
            spacing: 0
            Layout.fillWidth: true
            Label {
                objectName: "timerTime"
                Layout.fillWidth: true
                text: card.timer.displayTime
                font.pixelSize: Theme.fontTitle
                font.weight: Font.DemiBold
            }
            Label {
                objectName: "timerMode"
                Layout.fillWidth: true
                text: card.timer.modeName
                color: card.timer.color
                font.pixelSize: Theme.fontCaption
                font.weight: Font.Medium
            }
        }

        RoundButton {
            objectName: "timerStopButton"
            visible: card.timer.showsStop
            // The mode's name makes the action plain: "Stop focus", "Stop short break".
            Accessible.name: qsTr("Stop %1").arg(card.timer.modeName.toLowerCase())
            icon.source: Icons.source("stop.fill")
            icon.color: card.timer.color
            icon.width: 12
            icon.height: 12
            display: AbstractButton.IconOnly
            implicitWidth: 32
            implicitHeight: 32
            background: Rectangle {
                radius: height / 2
                color: Theme.tint(card.timer.color, parent.down ? Theme.buttonPressed : Theme.buttonWash)
                border.width: parent.visualFocus ? 2 : 0
                border.color: palette.highlight
            }
            Accessible.onPressAction: clicked()
            onClicked: card.controller.stopTimer()
        }

        RoundButton {
            objectName: "timerMainButton"
            property string symbol: card.timer.mainSymbol
            Accessible.name: (symbol === "pause.fill" ? qsTr("Pause %1")
                                                      : card.timer.showsStop ? qsTr("Resume %1") : qsTr("Start %1"))
                                 .arg(card.timer.modeName.toLowerCase())
            icon.source: Icons.source(symbol)
            icon.color: Theme.onColor
            icon.width: 14
            icon.height: 14
            display: AbstractButton.IconOnly
            implicitWidth: 32
            implicitHeight: 32
            background: Rectangle {
                radius: height / 2
                color: card.timer.color
                opacity: parent.down ? Theme.pressedFill : 1
                border.width: parent.visualFocus ? 2 : 0
                border.color: palette.highlight
            }
            Accessible.onPressAction: clicked()
            onClicked: card.controller.toggleTimer()
        }
    }
}
