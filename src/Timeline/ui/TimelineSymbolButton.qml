import QtQuick
import QtQuick.Controls
import Larkspan

// A flat button showing one symbol; its help text is its accessible name and tooltip.
ToolButton {
    id: button

    property string symbol
    property string help
    property color tint: palette.windowText
    property real symbolSize: 16

    Accessible.onPressAction: clicked()
    Accessible.name: help
    focusPolicy: Qt.StrongFocus
    implicitWidth: 26
    implicitHeight: 26
    padding: 4
    ToolTip.visible: hovered && help.length > 0
    ToolTip.delay: 600
    ToolTip.text: help
    contentItem: SymbolIcon {
        name: button.symbol
        size: button.symbolSize
        color: button.enabled ? button.tint : Theme.tertiaryText
    }
}
