import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// One stitched block of the list: category circle, title with its marks, times and subtitle, the
// duration, and the edit and delete buttons. A tap elsewhere on the row selects it. A row of the
// controller's `rows` model.
ItemDelegate {
    id: row

    required property TimelineController controller
    required property int index
    required property double blockID
    required property string emoji
    required property color color
    required property string title
    required property bool isManual
    required property bool pending
    required property int visits
    required property string timeText
    required property string subtitle
    required property string duration
    required property bool selected

    objectName: "row" + index
    width: ListView.view ? ListView.view.width : implicitWidth
    implicitHeight: 52
    focusPolicy: Qt.StrongFocus
    Accessible.name: title + ", " + timeText + ", " + duration
    Accessible.selectable: true
    Accessible.selected: selected
    Accessible.onPressAction: clicked()
    onClicked: controller.tapRow(blockID)

    background: Rectangle {
        color: row.selected ? Theme.tint(palette.highlight, 0.08) : row.hovered ? Theme.hover : "transparent"
        border.width: row.visualFocus ? 2 : 0
        border.color: palette.highlight
        Rectangle {
            anchors.left: parent.left
            anchors.leftMargin: 52
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            height: 1
            color: Theme.separator
        }
    }
    contentItem: RowLayout {
        spacing: Theme.spacingLarge
        Rectangle {
            implicitWidth: 34
            implicitHeight: 34
            radius: 17
            color: Theme.tint(row.color, 0.15)
            EmojiLabel {
                anchors.centerIn: parent
                text: row.emoji
            }
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2
            RowLayout {
                spacing: 5
                Layout.fillWidth: true
                Label {
                    id: titleLabel
                    objectName: "rowTitle" + row.index
                    // As wide as the title, never wider, and elided when the row is short of room.
                    Layout.fillWidth: true
                    Layout.preferredWidth: natural.advanceWidth + 1
                    Layout.maximumWidth: natural.advanceWidth + 1
                    TextMetrics {
                        id: natural
                        font: titleLabel.font
                        text: titleLabel.text
                    }
                    horizontalAlignment: Text.AlignLeft
                    text: row.title
                    textFormat: Text.PlainText
                    font.pixelSize: Theme.fontBody
                    font.weight: Font.Medium
                    elide: Text.ElideRight
                    maximumLineCount: 1
                }
                SymbolIcon {
                    visible: row.isManual
                    name: "pencil.circle.fill"
                    size: 12
                    color: palette.highlight
                }
                Rectangle {
                    objectName: "pendingDot" + row.index
                    visible: row.pending
                    implicitWidth: 6
                    implicitHeight: 6
                    radius: 3
                    color: Theme.orange
                }
                Label {
                    objectName: "visits" + row.index
                    visible: row.visits > 1
                    text: row.visits + " visits"
                    font.pixelSize: Theme.fontTiny
                    color: Theme.secondaryText
                    leftPadding: 6
                    rightPadding: 6
                    background: Rectangle {
                        radius: height / 2
                        color: Theme.tint(Theme.secondaryText, 0.12)
                    }
                }
                Item {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 0
                }
            }
            Label {
                objectName: "rowSubtitle" + row.index
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignLeft
                text: row.subtitle.length > 0 ? row.timeText + "  ·  " + row.subtitle : row.timeText
                textFormat: Text.PlainText
                color: Theme.secondaryText
                font.pixelSize: Theme.fontCaption
                elide: Text.ElideRight
                maximumLineCount: 1
            }
        }
        Label {
            objectName: "rowDuration" + row.index
            Layout.minimumWidth: 36
            horizontalAlignment: Text.AlignRight
            text: row.duration
            color: Theme.secondaryText
            font.pixelSize: Theme.fontSmall
            font.weight: Font.Medium
        }
        TimelineSymbolButton {
            objectName: "editRow" + row.index
            symbol: "pencil"
            help: "Edit"
            symbolSize: 14
            onClicked: row.controller.editRow(row.blockID)
        }
        TimelineSymbolButton {
            objectName: "deleteRow" + row.index
            symbol: "trash"
            help: "Delete"
            symbolSize: 14
            onClicked: row.controller.deleteRow(row.blockID)
        }
    }
}
