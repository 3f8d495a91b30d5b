import QtQuick
import QtQuick.Controls
import Larkspan

// A small capsule of the filter bar and the sheets' presets: white on the accent colour when chosen.
Button {
    id: capsule

    property bool chosen: false

    Accessible.onPressAction: clicked()
    Accessible.name: text
    focusPolicy: Qt.StrongFocus
    font.pixelSize: Theme.fontCaption
    leftPadding: 9
    rightPadding: 9
    topPadding: 3
    bottomPadding: 3
    contentItem: Text {
        text: capsule.text
        font: capsule.font
        color: capsule.chosen ? Theme.onColor : Theme.primaryText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
    background: Rectangle {
        radius: height / 2
        color: capsule.chosen ? palette.highlight : Theme.tint(Theme.secondaryText, capsule.down ? 0.2 : 0.1)
        border.width: capsule.visualFocus ? 2 : 0
        border.color: palette.highlight
    }
}
