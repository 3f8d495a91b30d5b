import QtQuick
import QtQuick.Controls
import Larkspan

// One answer of a floating prompt: an emoji over a label, each on one line, on a tinted rounded tile.
AbstractButton {
    // Qt 6.4's buttons offer Press to a screen reader but do nothing on it: do what a click does.
    Accessible.onPressAction: clicked()
    // Within the grid the arrow keys step from answer to answer, Return answers.
    Keys.onLeftPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
    Keys.onRightPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
    Keys.onReturnPressed: clicked()
    id: control

    property string emoji
    property color tint: palette.highlight
    // The tile and its edge at rest; a transparent edge draws none.
    property color restFill: Theme.tint(tint, Theme.track)
    property color restEdge: Theme.tint(tint, Theme.tilePressed)

    implicitHeight: 34
    hoverEnabled: true
    padding: 1
    leftPadding: 4
    rightPadding: 4

    contentItem: Column {
        spacing: 0
        topPadding: Math.max(0, (height - implicitHeight) / 2)
        Text {
            width: parent.width
            height: 17
            verticalAlignment: Text.AlignVCenter
            horizontalAlignment: Text.AlignHCenter
            text: control.emoji
            textFormat: Text.PlainText
            // Named, as the first fallback font with the character would draw it in black and white.
            font.family: Theme.emojiFont
            font.pixelSize: 14
            maximumLineCount: 1
        }
        Text {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            text: control.text
            textFormat: Text.PlainText
            font.pixelSize: 11
            font.weight: Font.Medium
            color: palette.windowText
            elide: Text.ElideRight
            maximumLineCount: 1
        }
    }

    background: Rectangle {
        radius: 8
        color: control.down ? Theme.tint(control.tint, Theme.tilePressed)
                            : control.hovered ? Theme.tint(control.tint, Theme.tileHover) : control.restFill
        border.width: control.visualFocus ? 2 : control.restEdge.a > 0 ? 1 : 0
        border.color: control.visualFocus ? palette.highlight : control.restEdge
    }
}
