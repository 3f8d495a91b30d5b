import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The session in progress at the top of the dashboard's sidebar: the category's emoji, the session's
// title, and a dot with "Live · " and the category, on the category's colour at 12 %. No action.
Rectangle {
    id: card

    required property DashboardController controller
    required property color secondaryText

    readonly property color tint: controller.sessionColor

    implicitHeight: content.implicitHeight + 24
    radius: 10
    color: Qt.rgba(tint.r, tint.g, tint.b, 0.12)

    RowLayout {
        id: content
        anchors.fill: parent
        anchors.margins: 12
        spacing: 10

        Text {
            objectName: "liveIcon"
            Layout.alignment: Qt.AlignVCenter
            Layout.preferredWidth: 32
            horizontalAlignment: Text.AlignHCenter
            text: card.controller.sessionIcon
            font.pixelSize: 26
            font.family: "Noto Color Emoji"
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 3

            Label {
                objectName: "liveTitle"
                Layout.fillWidth: true
                text: card.controller.sessionTitle
                elide: Text.ElideRight
                maximumLineCount: 1
                textFormat: Text.PlainText
                color: palette.windowText
                font.pixelSize: 13
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
                    color: card.tint
                }
                Label {
                    objectName: "liveStatus"
                    Layout.fillWidth: true
                    text: card.controller.sessionStatus
                    elide: Text.ElideRight
                    textFormat: Text.PlainText
                    color: card.secondaryText
                    font.pixelSize: 11
                }
            }
        }
    }
}
