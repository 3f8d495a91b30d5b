import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// One row of the dashboard's tab list: the tab's symbol and label, highlighted while selected.
// A row of the controller's tab model.
Rectangle {
    id: row

    required property string label
    required property string symbol
    property bool selected: false

    signal clicked()

    implicitHeight: 32
    radius: 6
    color: selected ? palette.highlight : mouse.containsMouse ? Theme.hover : "transparent"
    Accessible.role: Accessible.PageTab
    Accessible.name: label
    Accessible.selected: selected
    Accessible.onPressAction: row.clicked()

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 10
        anchors.rightMargin: 10
        spacing: Theme.spacingLarge

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
            font.pixelSize: Theme.fontBody
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
