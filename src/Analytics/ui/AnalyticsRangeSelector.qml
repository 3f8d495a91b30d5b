import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The segmented control of the periods, 360 wide: one segment per range, the current one filled.
// Tab reaches it, the arrow keys move within it, Return or Space chooses.
TabBar {
    id: bar

    required property AnalyticsController controller

    implicitWidth: 360
    currentIndex: controller.header.rangeIndex
    spacing: 2
    padding: 2
    Accessible.name: controller.labels.range

    background: Rectangle {
        radius: 8
        color: Theme.tint(Theme.secondaryText, 0.12)
    }

    Repeater {
        model: bar.controller.labels.ranges

        TabButton {
            id: segment
            required property int index
            required property string modelData

            objectName: "range-" + modelData
            text: modelData
            implicitHeight: 28
            leftPadding: 4
            rightPadding: 4
            focusPolicy: Qt.StrongFocus
            Accessible.name: modelData
            Accessible.onPressAction: clicked()
            Keys.onReturnPressed: clicked()
            Keys.onEnterPressed: clicked()
            onClicked: bar.controller.chooseRange(index)

            background: Rectangle {
                radius: 6
                color: segment.index === bar.currentIndex ? palette.base
                       : segment.hovered ? Theme.hover : "transparent"
                border.width: segment.visualFocus ? 2 : (segment.index === bar.currentIndex ? 1 : 0)
                border.color: segment.visualFocus ? palette.highlight : Theme.separator
            }
            contentItem: Label {
                text: segment.text
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
                font.pixelSize: Theme.fontSmall
                font.weight: segment.index === bar.currentIndex ? Font.DemiBold : Font.Normal
                color: Theme.primaryText
                elide: Text.ElideRight
            }
        }
    }
}
