import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// One figure of the period: its symbol in its colour, the value in bold on one line (shrinking rather
// than wrapping) and the label, on a wash of the colour. A row of the controller's tile model.
Rectangle {
    id: tile

    required property int index
    required property string label
    required property string value
    required property string symbol
    required property color tone
    required property string spoken

    objectName: "tile" + index
    Layout.fillWidth: true
    Layout.preferredWidth: 1
    implicitHeight: 92
    radius: 10
    color: Theme.tint(tile.tone, 0.08)
    Accessible.role: Accessible.StaticText
    Accessible.name: spoken

    ColumnLayout {
        anchors.fill: parent
        anchors.margins: 12
        spacing: 4

        SymbolIcon {
            name: tile.symbol
            color: tile.tone
            size: 18
        }
        Label {
            objectName: "tileValue" + tile.index
            Layout.fillWidth: true
            text: tile.value
            textFormat: Text.PlainText
            font.pixelSize: Theme.fontLargeTitle - 2
            font.weight: Font.Bold
            // "🍅" draws from the colour font, the figures from the text font.
            font.family: Qt.application.font.family + ", " + Theme.emojiFont
            color: Theme.primaryText
            maximumLineCount: 1
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: Math.round(font.pixelSize * 0.6)
            Accessible.ignored: true
        }
        Label {
            Layout.fillWidth: true
            text: tile.label
            color: Theme.secondaryText
            font.pixelSize: Theme.fontSmall
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
