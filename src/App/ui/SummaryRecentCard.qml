import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The day's last five activities over 30 seconds, newest first: emoji, title over start time, and
// duration; or "Nothing tracked yet".
ColumnLayout {
    id: card

    required property QuickSummaryController controller

    Layout.fillWidth: true
    Layout.margins: Theme.margin
    Layout.topMargin: 8
    Layout.bottomMargin: 8
    spacing: 5

    SectionTitle {
        text: card.controller.labels.recentTitle
    }

    Repeater {
        model: card.controller.recentRows
        delegate: RowLayout {
            id: recent
            required property int index
            required property string icon
            required property string title
            required property string time
            required property string duration

            objectName: "recentRow" + recent.index
            Layout.fillWidth: true
            spacing: Theme.spacing
            Accessible.role: Accessible.StaticText
            Accessible.name: recent.title + ", " + recent.time + ", " + recent.duration

            EmojiLabel {
                text: recent.icon
                font.pixelSize: 14
                Layout.preferredWidth: 20
            }
            ColumnLayout {
                spacing: 0
                Layout.fillWidth: true
                Label {
                    objectName: "recentTitle" + recent.index
                    horizontalAlignment: Text.AlignLeft
                    text: recent.title
                    textFormat: Text.PlainText
                    font.pixelSize: Theme.fontSmall
                    elide: Text.ElideRight
                    maximumLineCount: 1
                    Layout.fillWidth: true
                }
                Label {
                    objectName: "recentTime" + recent.index
                    text: recent.time
                    color: Theme.secondaryText
                    font.pixelSize: Theme.fontTiny
                }
            }
            Label {
                text: recent.duration
                color: Theme.secondaryText
                font.pixelSize: Theme.fontCaption
            }
        }
    }

    Label {
        objectName: "recentEmpty"
        visible: card.controller.recentRows.count === 0
        text: card.controller.labels.nothingTracked
        color: Theme.secondaryText
        font.pixelSize: Theme.fontSmall
    }
}
