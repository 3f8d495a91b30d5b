import QtQuick
import QtQuick.Controls
import Larkspan

// "Start Larkspan at login", the same switch as the tray menu's entry. Its state is read again each
// time it comes on screen; a change that fails leaves it as it was, with the reason below it.
Column {
    id: root

    spacing: 6
    onVisibleChanged: if (visible) StartAtLoginController.refresh()
    Component.onCompleted: StartAtLoginController.refresh()

    Switch {
        id: toggle
        objectName: "startAtLoginSwitch"
        anchors.horizontalCenter: parent.horizontalCenter
        text: "Start Larkspan at login"
        checked: StartAtLoginController.on
        Accessible.name: text
        // Qt 6.4's switch does nothing on a screen reader's action: do what a click does.
        Accessible.onPressAction: { toggle(); toggled() }
        Accessible.onToggleAction: { toggle(); toggled() }
        onToggled: {
            StartAtLoginController.setOn(checked)
            // The controller has the last word: a refused change flips the switch back.
            checked = Qt.binding(() => StartAtLoginController.on)
        }

        // A track in the accent colour when on, so the state reads at a glance in either palette.
        indicator: Rectangle {
            x: toggle.leftPadding
            anchors.verticalCenter: parent.verticalCenter
            implicitWidth: 40
            implicitHeight: 22
            radius: height / 2
            color: toggle.checked ? palette.highlight : Theme.tint(Theme.primaryText, Theme.track)
            border.width: toggle.visualFocus ? 2 : 0
            border.color: palette.highlight

            Rectangle {
                x: toggle.checked ? parent.width - width - 3 : 3
                anchors.verticalCenter: parent.verticalCenter
                width: 16
                height: 16
                radius: 8
                color: Theme.onColor
            }
        }
        contentItem: Label {
            leftPadding: toggle.indicator.width + 10
            verticalAlignment: Text.AlignVCenter
            text: toggle.text
            color: Theme.primaryText
            font.pixelSize: Theme.fontBody
        }
    }
    Label {
        objectName: "startAtLoginProblem"
        width: parent.width
        visible: text !== ""
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        text: StartAtLoginController.problem
        color: Theme.secondaryText
        font.pixelSize: Theme.fontSmall
    }
}
