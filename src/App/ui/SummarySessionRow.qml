import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// What is being tracked now: the category's emoji, the session's title over its category and " • Now",
// and a dot in the category's colour; without a session, a cup and "No active session".
RowLayout {
    id: row

    required property QuickSummaryController controller
    readonly property var session: controller.session

    objectName: "sessionRow"
    Layout.fillWidth: true
    Layout.leftMargin: Theme.margin
    Layout.rightMargin: Theme.margin
    Layout.topMargin: Theme.spacingSmall
    Layout.bottomMargin: Theme.spacingSmall
    spacing: Theme.spacingLarge

    EmojiLabel {
        text: row.session.icon
        font.pixelSize: Theme.fontTitle
        Layout.preferredWidth: 28
    }
    ColumnLayout {
        spacing: 1
        Layout.fillWidth: true
        Label {
            objectName: "sessionTitle"
            horizontalAlignment: Text.AlignLeft  // right-to-left titles too, so rows line up
            text: row.session.title
            textFormat: Text.PlainText
            font.pixelSize: Theme.fontBody
            font.weight: Font.Medium
            elide: Text.ElideRight
            maximumLineCount: 1
            Layout.fillWidth: true
        }
        Label {
            objectName: "sessionSubtitle"
            horizontalAlignment: Text.AlignLeft
            visible: row.session.hasSession
            text: row.session.subtitle
            textFormat: Text.PlainText
            color: Theme.secondaryText
            font.pixelSize: Theme.fontCaption
            elide: Text.ElideRight
            Layout.fillWidth: true
        }
    }
    Rectangle {
        objectName: "sessionDot"
        visible: row.session.hasSession
        implicitWidth: 8
        implicitHeight: 8
        radius: 4
        color: row.session.dotColor
    }
}
