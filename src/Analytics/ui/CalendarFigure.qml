import QtQuick
import Larkspan

// A figure that may begin with the tomato, "🍅 7" or "🍅3": the tomato in the colour emoji font and
// the digits in the text font, which the emoji font would draw oddly. One text to a screen reader.
Row {
    id: figure

    property string text
    property color color: Theme.primaryText
    property int pixelSize: Theme.fontBody
    property bool bold: false
    readonly property bool tomato: text.startsWith("\u{1F345}")

    spacing: Math.round(pixelSize / 5)
    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Text {
        visible: figure.tomato
        anchors.verticalCenter: parent.verticalCenter
        text: "\u{1F345}"
        font.family: Theme.emojiFont
        font.pixelSize: figure.pixelSize
    }
    Text {
        anchors.verticalCenter: parent.verticalCenter
        text: figure.tomato ? figure.text.slice(2).trim() : figure.text
        color: figure.color
        font.pixelSize: figure.pixelSize
        font.weight: figure.bold ? Font.Bold : Font.Normal
    }
}
