import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The session in progress at the top of the dashboard's sidebar: the category's emoji, the session's
// title, and a dot with "Live · " and the category, on the category's colour at 12 %. No action.
Rectangle {
    id: card

    required property DashboardController controller
    readonly property var shown: controller.liveCard

    implicitHeight: content.implicitHeight + 24
    radius: 10
    color: Theme.tint(shown.color, Theme.wash)

    RowLayout {
        id: content
        anchors.fill: parent
        anchors.margins: 12
        spacing: 10

        EmojiLabel {
            objectName: "liveIcon"
            Layout.alignment: Qt.AlignVCenter
            Layout.preferredWidth: 32
            text: card.shown.icon
            font.pixelSize: 26
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 3

            Label {
                objectName: "liveTitle"
                Layout.fillWidth: true
                text: card.shown.title
                elide: Text.ElideRight
                maximumLineCount: 1
                textFormat: Text.PlainText
                color: palette.windowText
                font.pixelSize: Theme.fontBody
                font.weight: Font.DemiBold
            }
            RowLayout {
                Layout.fillWidth: true
                spacing: 6

                Rectangle {
                    objectName: "liveDot"
                    implicitWidth: 8
                    implicitHeight: 8
                    radius: 4
                    color: card.shown.color
                }
                Label {
                    objectName: "liveStatus"
                    Layout.fillWidth: true
                    text: card.shown.status
                    elide: Text.ElideRight
                    textFormat: Text.PlainText
                    color: Theme.secondaryText
                    font.pixelSize: Theme.fontCaption
                }
            }
        }
    }
}
