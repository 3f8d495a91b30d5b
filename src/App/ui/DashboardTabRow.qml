import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// One row of the dashboard's tab list: the tab's symbol and label, highlighted while selected.
Rectangle {
    id: row

    property string label
    property string symbol
    property bool selected: false

    signal clicked()

    implicitHeight: 32
    radius: 6
    color: selected ? palette.highlight
                    : mouse.containsMouse ? Qt.rgba(palette.windowText.r, palette.windowText.g,
                                                    palette.windowText.b, 0.07)
                                          : "transparent"

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 10
        anchors.rightMargin: 10
        spacing: 10

        SymbolIcon {
            Layout.alignment: Qt.AlignVCenter
            name: row.symbol
            size: 16
            color: row.selected ? palette.highlightedText : palette.highlight
        }
        Label {
            Layout.fillWidth: true
            text: row.label
            elide: Text.ElideRight
            color: row.selected ? palette.highlightedText : palette.windowText
            font.pixelSize: 13
        }
    }

    MouseArea {
        id: mouse
        anchors.fill: parent
        hoverEnabled: true
        cursorShape: Qt.PointingHandCursor
        onClicked: row.clicked()
    }
}
