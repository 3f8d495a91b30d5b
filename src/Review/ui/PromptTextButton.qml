import QtQuick
import QtQuick.Controls
import Larkspan

// A quiet text-only button for a floating prompt's last row ("Skip", "More…", "Dismiss").
Button {
    // Qt 6.4's buttons offer Press to a screen reader but do nothing on it: do what a click does.
    Accessible.onPressAction: clicked()
    flat: true
    font.pixelSize: 12
    // As wide as its label: the style's minimum width would float the text away from the edge.
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: 20
    topPadding: 2
    bottomPadding: 2
    leftPadding: 8
    rightPadding: 8
}
