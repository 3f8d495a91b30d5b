import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// A category's emoji or a timer mark, centred in a square-ish cell so that rows line up.
Label {
    font.family: Theme.emojiFont
    font.pixelSize: 16
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
    textFormat: Text.PlainText
    Layout.preferredWidth: 24
}
