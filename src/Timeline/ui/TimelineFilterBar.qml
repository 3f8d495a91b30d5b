import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The filter bar: the duration options, "Smart Group" and the list/timeline switch.
RowLayout {
    id: bar

    required property TimelineController controller

    spacing: 4

    Label {
        text: "Show"
        color: Theme.secondaryText
        font.pixelSize: Theme.fontCaption
        Layout.rightMargin: 4
    }
    Repeater {
        model: bar.controller.filterOptions
        TimelineCapsuleButton {
            required property string label
            required property int seconds
            required property bool chosen
            objectName: "filter-" + label
            text: label
            onClicked: bar.controller.minDurationFilter = seconds
        }
    }
    Switch {
        id: smartGroup
        objectName: "smartGroup"
        Layout.leftMargin: Theme.spacing
        text: "Smart Group"
        font.pixelSize: Theme.fontCaption
        checked: bar.controller.groupSameCategory
        focusPolicy: Qt.StrongFocus
        Accessible.name: text
        Accessible.description: "Stitch same-resource sessions separated by ≤5 min (e.g. same video with tab switching)"
        Accessible.onPressAction: toggle()
        ToolTip.visible: hovered
        ToolTip.delay: 600
        ToolTip.text: Accessible.description
        onToggled: bar.controller.groupSameCategory = checked
    }
    Item {
        Layout.fillWidth: true
    }
    Rectangle {
        implicitWidth: modes.implicitWidth + 4
        implicitHeight: modes.implicitHeight + 4
        radius: 6
        color: Theme.tint(Theme.secondaryText, 0.1)
        Row {
            id: modes
            anchors.centerIn: parent
            spacing: 2
            Repeater {
                model: [{ "symbol": "list.bullet", "help": "List view", "list": true },
                        { "symbol": "timeline.selection", "help": "Timeline view", "list": false }]
                TimelineSymbolButton {
                    required property var modelData
                    objectName: modelData.list ? "listMode" : "timelineMode"
                    symbol: modelData.symbol
                    help: modelData.help
                    checked: bar.controller.listMode === modelData.list
                    tint: checked ? Theme.onColor : Theme.primaryText
                    background: Rectangle {
                        radius: 5
                        color: parent.checked ? palette.highlight : "transparent"
                    }
                    onClicked: bar.controller.listMode = modelData.list
                }
            }
        }
    }
}
