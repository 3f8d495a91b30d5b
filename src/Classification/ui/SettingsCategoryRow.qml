import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// One category of the settings list: icon, name, its productivity badge, edit and delete ("Other" has
// no delete: it takes in what deleted categories leave).
ItemDelegate {
    id: row

    required property int index
    required property var categoryID
    required property string name
    required property string emoji
    required property int productivity
    required property string badgeText
    required property color badgeColor
    required property bool deletable

    signal editRequested(var row)
    signal deleteRequested(var categoryID)

    objectName: "categoryRow-" + index
    implicitHeight: 44
    leftPadding: Theme.margin
    rightPadding: Theme.spacing
    // The row itself edits, as its pencil does.
    text: name
    Accessible.name: name + ", " + badgeText
    Accessible.onPressAction: clicked()
    onClicked: row.editRequested(row)

    contentItem: RowLayout {
        spacing: Theme.spacingLarge

        Text {
            text: row.emoji
            textFormat: Text.PlainText
            // An icon typed as plain text, not an emoji, takes the text colour.
            color: Theme.primaryText
            font.family: Theme.emojiFont
            font.pixelSize: 16
            Layout.preferredWidth: 24
            horizontalAlignment: Text.AlignHCenter
        }
        Label {
            objectName: "categoryName"
            Layout.fillWidth: true
            text: row.name
            textFormat: Text.PlainText
            color: Theme.primaryText
            font.pixelSize: Theme.fontBody
            elide: Text.ElideRight
            maximumLineCount: 1
        }
        Rectangle {
            objectName: "badge"
            implicitWidth: badgeLabel.implicitWidth + 16
            implicitHeight: 20
            radius: height / 2
            color: Theme.tint(row.badgeColor, Theme.track)
            Label {
                id: badgeLabel
                anchors.centerIn: parent
                text: row.badgeText
                color: row.badgeColor
                font.pixelSize: Theme.fontCaption
                font.weight: Font.DemiBold
            }
        }
        ToolButton {
            objectName: "edit"
            icon.source: Icons.source("pencil")
            icon.color: Theme.secondaryText
            Accessible.name: "Edit " + row.name
            Accessible.onPressAction: clicked()
            ToolTip.text: "Edit"
            ToolTip.visible: hovered
            ToolTip.delay: 600
            onClicked: row.editRequested(row)
        }
        ToolButton {
            objectName: "delete"
            // Keeps its place in "Other"'s row, so the edit buttons stay in one column.
            opacity: row.deletable ? 1 : 0
            enabled: row.deletable
            icon.source: Icons.source("trash")
            icon.color: Theme.red
            Accessible.name: "Delete " + row.name
            Accessible.onPressAction: clicked()
            ToolTip.text: "Delete"
            ToolTip.visible: hovered
            ToolTip.delay: 600
            onClicked: row.deleteRequested(row.categoryID)
        }
    }

    background: Rectangle {
        color: row.hovered || row.visualFocus ? Theme.hover : "transparent"
        radius: 10
        Rectangle {
            anchors.top: parent.top
            anchors.left: parent.left
            anchors.leftMargin: Theme.margin
            anchors.right: parent.right
            height: 1
            visible: row.index > 0
            color: Theme.separator
        }
    }
}
