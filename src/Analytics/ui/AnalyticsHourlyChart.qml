import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The productive minutes of the hours 6 to 23: eighteen purple columns, 110 high and bottom-aligned,
// each as opaque as its share of the busiest hour, with the hour under it.
Row {
    id: chart

    required property AnalyticsController controller

    objectName: "hourBars"
    Layout.fillWidth: true
    Layout.preferredHeight: 110 + 18
    spacing: 2
    readonly property real columnWidth: (width - spacing * 17) / 18

    Repeater {
        model: chart.controller.hours

        Item {
            id: hour
            required property int index
            required property string label
            required property real barHeight
            required property real barOpacity
            required property string spoken

            objectName: "hourBar" + index
            width: chart.columnWidth
            height: chart.height
            Accessible.role: Accessible.StaticText
            Accessible.name: spoken

            Rectangle {
                anchors.bottom: caption.top
                anchors.bottomMargin: 4
                width: parent.width
                height: hour.barHeight
                radius: 3
                color: Theme.tint(Theme.purple, hour.barOpacity)
            }
            Label {
                id: caption
                anchors.bottom: parent.bottom
                anchors.horizontalCenter: parent.horizontalCenter
                text: hour.label
                font.pixelSize: Theme.fontTiny
                color: Theme.secondaryText
                Accessible.ignored: true
            }
        }
    }
}
