import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// One chapter on the canvas: a box of the dominant category's colour with its breakdown strip, icon,
// title and engaged time, or for an away span a slim bar that cannot be selected. A row of the
// controller's `chapters` model, placed by its frame.
Item {
    id: box

    required property TimelineController controller
    required property double chapterID
    required property double frameX
    required property double frameY
    required property double w
    required property double h
    required property bool isIdle
    required property string icon
    required property color color
    required property string title
    required property string line
    required property string duration
    required property bool selected
    required property var stripColors
    required property var stripHeights

    // Boxes stand right of the hour labels.
    x: frameX + controller.timeColumnWidth + 8
    y: frameY
    width: w
    height: h

    Rectangle {
        visible: box.isIdle
        anchors.fill: parent
        radius: 3
        color: Theme.tint(Theme.secondaryText, 0.05)
        border.width: 1
        border.color: Theme.tint(Theme.secondaryText, 0.15)
        Accessible.role: Accessible.StaticText
        Accessible.name: "Away / Break, " + box.duration
        RowLayout {
            anchors.fill: parent
            anchors.rightMargin: 6
            spacing: 6
            Rectangle {
                Layout.fillHeight: true
                implicitWidth: 3
                color: Theme.tint(Theme.secondaryText, 0.3)
            }
            EmojiLabel {
                text: "☕"
                font.pixelSize: 10
                Layout.preferredWidth: 14
            }
            Label {
                text: "Away / Break"
                font.pixelSize: 9
                font.weight: Font.Medium
                color: Theme.secondaryText
            }
            Item {
                Layout.fillWidth: true
            }
            Label {
                text: box.duration
                font.pixelSize: 9
                color: Theme.secondaryText
            }
        }
    }

    AbstractButton {
        objectName: "chapter-" + box.chapterID
        visible: !box.isIdle
        anchors.fill: parent
        focusPolicy: Qt.StrongFocus
        Accessible.name: box.title + ", " + box.duration
        Accessible.selectable: true
        Accessible.selected: box.selected
        Accessible.onPressAction: clicked()
        onClicked: box.controller.tapChapter(box.chapterID)
        background: Rectangle {
            radius: 4
            color: Theme.tint(box.color, box.selected ? 0.25 : 0.13)
            border.width: parent.visualFocus ? 2 : box.selected ? 1.5 : 1
            border.color: parent.visualFocus ? palette.highlight : box.selected ? box.color : Theme.tint(box.color, 0.3)
        }
        contentItem: RowLayout {
            spacing: 5
            clip: true
            Column {
                Layout.fillHeight: true
                Layout.preferredWidth: 5
                clip: true
                Repeater {
                    model: box.stripColors.length
                    Rectangle {
                        required property int index
                        width: 5
                        height: box.stripHeights[index]
                        color: box.stripColors[index]
                    }
                }
            }
            EmojiLabel {
                text: box.icon
                font.pixelSize: Math.max(6, Math.min(14, 0.38 * box.h))
                Layout.preferredWidth: 16
            }
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 1
                Label {
                    Layout.fillWidth: true
                    horizontalAlignment: Text.AlignLeft
                    text: box.title
                    textFormat: Text.PlainText
                    font.pixelSize: 10
                    font.weight: Font.Medium
                    elide: Text.ElideRight
                    maximumLineCount: 1
                }
                Label {
                    visible: box.h >= 30
                    Layout.fillWidth: true
                    horizontalAlignment: Text.AlignLeft
                    text: box.line
                    font.pixelSize: 8
                    color: Theme.secondaryText
                    elide: Text.ElideRight
                    maximumLineCount: 1
                }
            }
            Label {
                Layout.rightMargin: 6
                text: box.duration
                font.pixelSize: 9
                color: Theme.secondaryText
            }
        }
    }
}
