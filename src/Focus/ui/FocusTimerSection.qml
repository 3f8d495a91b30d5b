import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The focus tab's upper half: the header with the settings button, the mode selector, the active
// task, the clock with its ring, the cycle dots, the timer's buttons and today's figures.
ColumnLayout {
    id: section

    required property FocusController controller
    readonly property var labels: controller.labels
    readonly property var timer: controller.timer

    signal settingsRequested()

    // Stop and Skip: a wash of the mode's colour beside the filled main button.
    component SecondaryBackground: Rectangle {
        required property Button button
        implicitHeight: 32
        radius: 8
        color: Theme.tint(section.timer.color, button.down ? Theme.buttonPressed : Theme.buttonWash)
        border.width: button.visualFocus ? 2 : 0
        border.color: palette.highlight
    }

    spacing: 12

    RowLayout {
        Layout.fillWidth: true
        Text {
            objectName: "focusHeader"
            Layout.fillWidth: true
            Accessible.role: Accessible.Heading
            Accessible.name: text
            text: section.labels.header
            color: Theme.primaryText
            font.pixelSize: Theme.fontTitle
            font.weight: Font.Bold
        }
        ToolButton {
            objectName: "settingsButton"
            icon.source: Icons.source("gearshape")
            icon.color: Theme.secondaryText
            display: AbstractButton.IconOnly
            Accessible.name: section.labels.timerSettings
            ToolTip.visible: hovered
            ToolTip.text: section.labels.timerSettings
            Accessible.onPressAction: clicked()
            onClicked: section.settingsRequested()
        }
    }

    RowLayout {
        objectName: "modeSelector"
        Layout.alignment: Qt.AlignHCenter
        spacing: 4
        Repeater {
            model: section.labels.modeNames
            Button {
                id: modeButton
                required property string modelData
                required property int index
                readonly property bool current: index === section.timer.modeIndex
                objectName: "mode" + index
                text: modelData
                flat: true
                Accessible.name: modelData
                Accessible.checkable: true
                Accessible.checked: current
                leftPadding: 14
                rightPadding: 14
                contentItem: Label {
                    text: modeButton.text
                    color: modeButton.current ? Theme.onColor : Theme.secondaryText
                    font.pixelSize: Theme.fontBody
                    font.weight: modeButton.current ? Font.DemiBold : Font.Normal
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                }
                background: Rectangle {
                    implicitHeight: 30
                    radius: 8
                    color: modeButton.current ? section.timer.color
                                              : modeButton.hovered ? Theme.hover : "transparent"
                    opacity: modeButton.down ? Theme.pressedFill : 1
                    border.width: modeButton.visualFocus ? 2 : 0
                    border.color: palette.highlight
                }
                Accessible.onPressAction: clicked()
                onClicked: section.controller.switchMode(index)
            }
        }
    }

    RowLayout {
        objectName: "activeTask"
        Layout.alignment: Qt.AlignHCenter
        visible: section.timer.activeTaskTitle !== ""
        spacing: Theme.spacingSmall
        SymbolIcon {
            name: "scope"
            color: section.timer.color
            size: 14
        }
        Label {
            objectName: "activeTaskTitle"
            Layout.maximumWidth: section.width - 40
            text: section.timer.activeTaskTitle
            textFormat: Text.PlainText
            elide: Text.ElideRight
            maximumLineCount: 1
            color: section.timer.color
            font.pixelSize: Theme.fontBody
            font.weight: Font.Medium
        }
    }

    ProgressRing {
        objectName: "clockRing"
        Layout.alignment: Qt.AlignHCenter
        implicitWidth: 210
        implicitHeight: 210
        lineWidth: 14
        trackOpacity: Theme.wash
        progress: section.timer.progress
        color: section.timer.color
        Accessible.name: section.timer.clockName

        Column {
            anchors.centerIn: parent
            Label {
                objectName: "clockTime"
                anchors.horizontalCenter: parent.horizontalCenter
                text: section.timer.displayTime
                color: Theme.primaryText
                font.family: "monospace"
                font.pixelSize: 58
                font.weight: Font.Light
            }
            Label {
                objectName: "clockMode"
                anchors.horizontalCenter: parent.horizontalCenter
                text: section.timer.modeName
                color: section.timer.color
                font.pixelSize: Theme.fontBody
                font.weight: Font.Medium
            }
        }
    }

    Row {
        objectName: "cycleDots"
        Layout.alignment: Qt.AlignHCenter
        spacing: Theme.spacingSmall
        Accessible.role: Accessible.Indicator
        Accessible.name: section.timer.dotsName
        Repeater {
            model: section.timer.dots
            SymbolIcon {
                required property bool modelData
                name: modelData ? "circle.fill" : "circle"
                color: modelData ? section.timer.color : Theme.tint(Theme.secondaryText, Theme.hollowMark)
                size: 10
            }
        }
    }

    RowLayout {
        Layout.alignment: Qt.AlignHCenter
        spacing: Theme.spacingLarge
        Button {
            id: stopButton
            objectName: "stopButton"
            visible: section.timer.showsStop
            text: section.labels.stop
            icon.source: Icons.source("stop.fill")
            icon.width: 12
            icon.height: 12
            icon.color: section.timer.color
            palette.buttonText: section.timer.color
            implicitWidth: 90
            background: SecondaryBackground { button: stopButton }
            Accessible.name: text
            Accessible.onPressAction: clicked()
            onClicked: section.controller.stopTimer()
        }
        Button {
            id: mainButton
            objectName: "mainButton"
            text: section.timer.mainLabel
            icon.source: Icons.source(section.timer.mainPauses ? "pause.fill" : "play.fill")
            icon.color: Theme.onColor
            icon.width: 12
            icon.height: 12
            implicitWidth: Math.max(110, implicitContentWidth + leftPadding + rightPadding)
            palette.buttonText: Theme.onColor
            Accessible.name: text
            background: Rectangle {
                implicitHeight: 32
                radius: 8
                color: section.timer.color
                opacity: mainButton.down ? Theme.pressedFill : 1
                border.width: mainButton.visualFocus ? 2 : 0
                border.color: palette.highlight
            }
            Accessible.onPressAction: clicked()
            onClicked: section.controller.toggleTimer()
        }
        Button {
            id: skipButton
            objectName: "skipButton"
            visible: section.timer.showsSkip
            text: section.labels.skip
            icon.source: Icons.source("forward.end")
            icon.width: 12
            icon.height: 12
            icon.color: section.timer.color
            palette.buttonText: section.timer.color
            implicitWidth: 90
            background: SecondaryBackground { button: skipButton }
            Accessible.name: text
            Accessible.onPressAction: clicked()
            onClicked: section.controller.skipTimer()
        }
    }

    RowLayout {
        Layout.alignment: Qt.AlignHCenter
        spacing: Theme.spacingSmall
        SymbolIcon {
            name: "checkmark.circle.fill"
            color: section.timer.color
            size: 14
        }
        Label {
            objectName: "todayCount"
            text: section.timer.countText
            color: Theme.secondaryText
            font.pixelSize: Theme.fontSmall
        }
        Label {
            objectName: "todayTime"
            visible: text !== ""
            text: section.timer.timeText
            color: Theme.secondaryText
            font.pixelSize: Theme.fontSmall
        }
        ToolButton {
            objectName: "resetCountButton"
            visible: section.timer.timeText !== ""
            icon.source: Icons.source("arrow.counterclockwise.circle")
            icon.color: Theme.secondaryText
            icon.width: 14
            icon.height: 14
            display: AbstractButton.IconOnly
            implicitWidth: 26
            implicitHeight: 26
            Accessible.name: section.labels.resetCount
            ToolTip.visible: hovered
            ToolTip.text: section.labels.resetCount
            Accessible.onPressAction: clicked()
            onClicked: section.controller.resetTodayCount()
        }
    }
}
