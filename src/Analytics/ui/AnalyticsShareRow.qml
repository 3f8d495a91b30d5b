import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// One row of a breakdown: an emoji or a symbol, the name on one line, its share as a bar on a faint
// track, and its time. A row of one of the controller's breakdown models, in an AnalyticsRows column
// whose width the card gives it.
RowLayout {
    id: row

    required property int index
    required property string icon
    required property string name
    required property color color
    required property real fraction
    required property string duration
    required property string spoken

    // Set by the card: the symbol drawn instead of an emoji, the bar's colour, height and the name's
    // column width.
    property string symbol
    property color fill: row.color
    property real barHeight: 6
    property real nameWidth: 120

    spacing: Theme.spacing
    Accessible.role: Accessible.StaticText
    Accessible.name: spoken

    EmojiLabel {
        visible: row.symbol === ""
        text: row.icon
        font.pixelSize: 14
        Layout.preferredWidth: 22
        Accessible.ignored: true
    }
    SymbolIcon {
        visible: row.symbol !== ""
        name: row.symbol
        color: Theme.secondaryText
        size: 14
        Layout.preferredWidth: 22
    }
    Label {
        objectName: "shareName"
        text: row.name
        textFormat: Text.PlainText
        elide: Text.ElideRight
        maximumLineCount: 1
        font.pixelSize: Theme.fontSmall
        color: Theme.primaryText
        Layout.preferredWidth: row.nameWidth
        Layout.maximumWidth: row.nameWidth
        Accessible.ignored: true
    }
    Item {
        Layout.fillWidth: true
        implicitHeight: row.barHeight
        Rectangle {
            anchors.fill: parent
            radius: height / 2
            color: Theme.tint(Theme.secondaryText, 0.1)
        }
        Rectangle {
            objectName: "shareFill"
            width: parent.width * row.fraction
            height: parent.height
            radius: height / 2
            color: row.fill
        }
    }
    Label {
        text: row.duration
        color: Theme.secondaryText
        font.pixelSize: Theme.fontCaption
        horizontalAlignment: Text.AlignRight
        // Room for "189h 12m" and more, so a long period never pushes into the bar.
        Layout.preferredWidth: Math.max(58, implicitWidth)
        Accessible.ignored: true
    }
}
