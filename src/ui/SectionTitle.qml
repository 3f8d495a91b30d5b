import QtQuick
import QtQuick.Controls
import Larkspan

// The small capitals over a section of a screen ("TODAY'S BREAKDOWN", "RECENT").
Label {
    font.pixelSize: Theme.fontCaption
    font.weight: Font.DemiBold
    font.capitalization: Font.AllUppercase
    font.letterSpacing: 0.4
    color: Theme.secondaryText
}
