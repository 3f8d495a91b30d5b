import QtQuick
import Larkspan

// One symbol of the Icons table in a single colour, `size` pixels square unless laid out otherwise.
// An unknown name draws nothing.
Item {
    id: root

    property string name
    property color color: palette.windowText
    property real size: 16

    implicitWidth: size
    implicitHeight: size

    Image {
        anchors.fill: parent
        sourceSize: Qt.size(Math.ceil(root.width), Math.ceil(root.height))
        fillMode: Image.PreserveAspectFit
        source: Icons.tintedSource(root.name, root.color)
    }
}
