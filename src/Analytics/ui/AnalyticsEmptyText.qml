import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// What a card says when its period has nothing to show.
Label {
    Layout.fillWidth: true
    Layout.topMargin: 4
    Layout.bottomMargin: 4
    wrapMode: Text.Wrap
    color: Theme.secondaryText
    font.pixelSize: Theme.fontSmall
}
