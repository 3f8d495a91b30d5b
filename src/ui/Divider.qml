import QtQuick
import QtQuick.Layouts
import Larkspan

// A one-pixel hairline across a column, in the theme's separator colour.
Rectangle {
    Layout.fillWidth: true
    implicitHeight: 1
    color: Theme.separator
}
