import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// One bar per day with records, 130 high and bottom-aligned: the day in secondary colour with its
// productive part in green from the bottom, the day of the month under each, and the legend below.
ColumnLayout {
    id: chart

    required property AnalyticsController controller

    Layout.fillWidth: true
    spacing: 4

    component LegendItem: RowLayout {
        property alias swatch: box.color
        property alias text: caption.text
        spacing: 4
        Rectangle {
            id: box
            implicitWidth: 10
            implicitHeight: 10
            radius: 2
        }
        Label {
            id: caption
            color: Theme.secondaryText
            font.pixelSize: Theme.fontCaption
        }
    }

    Row {
        id: bars
        objectName: "dailyBars"
        Layout.fillWidth: true
        Layout.preferredHeight: 130 + 16
        spacing: 3
        readonly property real barWidth: Math.max(1, (width - spacing * (repeater.count - 1)) / Math.max(1, repeater.count))

        Repeater {
            id: repeater
            model: chart.controller.days

            Item {
                id: day
                required property int index
                required property string label
                required property real barHeight
                required property real productiveHeight
                required property string spoken

                objectName: "dayBar" + index
                width: bars.barWidth
                height: bars.height
                Accessible.role: Accessible.StaticText
                Accessible.name: spoken

                Rectangle {
                    anchors.bottom: caption.top
                    anchors.bottomMargin: 4
                    width: parent.width
                    height: day.barHeight
                    radius: Math.min(3, width / 2)
                    color: Theme.tint(Theme.secondaryText, 0.18)

                    Rectangle {
                        objectName: "productivePart"
                        anchors.bottom: parent.bottom
                        width: parent.width
                        height: day.productiveHeight
                        radius: parent.radius
                        color: Theme.tint(Theme.green, 0.75)
                    }
                }
                Label {
                    id: caption
                    anchors.bottom: parent.bottom
                    anchors.horizontalCenter: parent.horizontalCenter
                    text: day.label
                    font.pixelSize: Theme.fontTiny
                    color: Theme.secondaryText
                    // Ninety labels in a narrow bar draw smaller rather than wrap.
                    width: Math.max(parent.width, 8)
                    horizontalAlignment: Text.AlignHCenter
                    maximumLineCount: 1
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: 5
                    Accessible.ignored: true
                }
            }
        }
    }

    RowLayout {
        spacing: Theme.spacingLarge * 2
        LegendItem {
            swatch: Theme.tint(Theme.green, 0.75)
            text: chart.controller.labels.legendProductive
        }
        LegendItem {
            swatch: Theme.tint(Theme.secondaryText, 0.25)
            text: chart.controller.labels.legendOther
        }
    }
}
