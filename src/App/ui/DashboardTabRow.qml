import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// One row of the dashboard's tab list: the tab's symbol and label, highlighted while selected. A page
// tab to a screen reader; Tab reaches the list, the arrow keys move within it, Return or Space selects.
// A row of the controller's tab model.
TabButton {
    // Qt 6.4's buttons offer Press to a screen reader but do nothing on it: do what a click does.
    Accessible.onPressAction: clicked()
    id: row

    required property string label
    required property string symbol
    property bool selected: false

    text: label
    implicitHeight: 32
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    // Selected by the controller, not by its own check state.
    checkable: false
    Accessible.name: label
    Accessible.selectable: true
    Accessible.selected: selected
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onUpPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
    Keys.onDownPressed: nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)

    background: Rectangle {
        radius: 6
        color: row.selected ? palette.highlight : row.hovered ? Theme.hover : "transparent"
        border.width: row.visualFocus ? 2 : 0
        border.color: row.selected ? palette.highlightedText : palette.highlight
    }
    contentItem: RowLayout {
        spacing: Theme.spacingLarge

        SymbolIcon {
            Layout.leftMargin: 10
            Layout.alignment: Qt.AlignVCenter
            name: row.symbol
            size: 16
            color: row.selected ? palette.highlightedText : palette.highlight
        }
        Label {
            Layout.fillWidth: true
            Layout.rightMargin: 10
            text: row.label
            elide: Text.ElideRight
            color: row.selected ? palette.highlightedText : palette.windowText
            font.pixelSize: Theme.fontBody
        }
    }
}
