import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// Today's breakdown: up to four bars, each the category's emoji, its share of the day in its colour on
// a faint track, and its time; or "No data yet today". Below, the productivity line with its dot.
ColumnLayout {
    id: card

    required property QuickSummaryController controller

    Layout.fillWidth: true
    Layout.margins: Theme.margin
    Layout.topMargin: 8
    Layout.bottomMargin: 8
    spacing: Theme.spacingSmall

    SectionTitle {
        text: card.controller.labels.breakdownTitle
    }

    Repeater {
        model: card.controller.breakdownBars
        delegate: RowLayout {
            id: bar
            required property int index
            required property string icon
            required property string name
            required property color color
            required property real fraction
            required property string duration

            objectName: "breakdownBar" + bar.index
            Layout.fillWidth: true
            spacing: Theme.spacing
            Accessible.role: Accessible.StaticText
            Accessible.name: bar.name + " " + bar.duration

            EmojiLabel {
                text: bar.icon
                font.pixelSize: 14
                Layout.preferredWidth: 20
            }
            Item {
                Layout.fillWidth: true
                implicitHeight: 6
                Rectangle {
                    anchors.fill: parent
                    radius: 3
                    color: Theme.tint(Theme.secondaryText, Theme.track)
                }
                Rectangle {
                    objectName: "breakdownFill" + bar.index
                    width: parent.width * bar.fraction
                    height: parent.height
                    radius: 3
                    color: bar.color
                }
            }
            Label {
                text: bar.duration
                color: Theme.secondaryText
                font.pixelSize: Theme.fontCaption
                horizontalAlignment: Text.AlignRight
                Layout.preferredWidth: 40
            }
        }
    }

    Label {
        objectName: "breakdownEmpty"
        visible: !card.controller.day.hasBreakdown
        text: card.controller.labels.noDataYet
        color: Theme.secondaryText
        font.pixelSize: Theme.fontSmall
    }

    RowLayout {
        visible: card.controller.day.productivityText !== ""
        spacing: Theme.spacingSmall
        Layout.topMargin: 2
        Rectangle {
            objectName: "productivityDot"
            implicitWidth: 7
            implicitHeight: 7
            radius: 3.5
            color: card.controller.day.productivityColor
        }
        Label {
            objectName: "productivityText"
            text: card.controller.day.productivityText
            color: Theme.secondaryText
            font.pixelSize: Theme.fontCaption
        }
    }
}
