import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// A grid of categories, icon above name, the current one washed in its colour; a tap picks one.
GridLayout {
    id: grid

    property alias model: cells.model
    property double currentID: -1
    property real currentOpacity: 0.3
    property real otherOpacity: 0.1
    property bool outlineCurrent: false
    property int cellRadius: 6
    property string namePrefix: "category-"
    signal picked(double categoryID)

    columnSpacing: 5
    rowSpacing: 5

    Repeater {
        id: cells
        AbstractButton {
            id: cell
            required property double categoryID
            required property string emoji
            required property string name
            required property color color
            readonly property bool current: categoryID === grid.currentID

            objectName: grid.namePrefix + name
            Layout.fillWidth: true
            Layout.preferredWidth: 10
            implicitHeight: 46
            focusPolicy: Qt.StrongFocus
            Accessible.role: Accessible.RadioButton
            Accessible.name: name
            Accessible.checkable: true
            Accessible.checked: current
            Accessible.onPressAction: clicked()
            onClicked: grid.picked(categoryID)
            background: Rectangle {
                radius: grid.cellRadius
                color: cell.current ? Theme.tint(cell.color, grid.currentOpacity)
                                    : cell.hovered ? Theme.hover : Theme.tint(Theme.secondaryText, grid.otherOpacity)
                border.width: cell.visualFocus ? 2 : cell.current && grid.outlineCurrent ? 1.5 : 0
                border.color: cell.visualFocus ? palette.highlight : cell.color
            }
            contentItem: ColumnLayout {
                spacing: 1
                EmojiLabel {
                    Layout.alignment: Qt.AlignHCenter
                    text: cell.emoji
                }
                Label {
                    Layout.fillWidth: true
                    horizontalAlignment: Text.AlignHCenter
                    text: cell.name
                    font.pixelSize: 9
                    elide: Text.ElideRight
                    maximumLineCount: 1
                }
            }
        }
    }
}
