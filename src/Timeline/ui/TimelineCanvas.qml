import QtQuick
import QtQuick.Controls
import Larkspan

// The day to scale: 24 hour rows with their labels, the chapter boxes and away bars, and the now line
// on today. Only the boxes near the visible rows exist as items: the view tells the controller what it
// shows as it scrolls.
Flickable {
    id: canvas

    required property TimelineController controller

    // Room above the first row for the label lifted onto its line.
    readonly property real topInset: 8

    contentWidth: width
    contentHeight: controller.canvasHeight + topInset + 60
    clip: true
    boundsBehavior: Flickable.StopAtBounds
    ScrollBar.vertical: ScrollBar {}

    function reportViewport() {
        controller.setViewport(contentY - topInset, contentY - topInset + height)
    }
    onContentYChanged: reportViewport()
    onHeightChanged: reportViewport()

    // Whenever the canvas comes into view (its mode, its tab or its window shown) it shows the
    // present hour with one hour above it, on any day; stepping to another day keeps the place.
    readonly property bool inView: visible && Window.visibility !== Window.Hidden
    Timer {
        id: presentHourScroll
        interval: 150
        onTriggered: canvas.contentY = Math.max(0, Math.min(canvas.controller.presentHourY(),
                                                            canvas.contentHeight - canvas.height))
    }
    onInViewChanged: if (inView) presentHourScroll.restart()
    Component.onCompleted: if (inView) presentHourScroll.restart()

    Item {
        x: 4
        y: canvas.topInset
        width: canvas.width - 4
        height: canvas.controller.canvasHeight

        Repeater {
            model: canvas.controller.hourLabels
            Item {
                required property int index
                required property string modelData
                objectName: "hour-" + index
                y: index * canvas.controller.hourHeight
                width: parent.width
                height: canvas.controller.hourHeight
                Label {
                    y: -7
                    width: canvas.controller.timeColumnWidth
                    horizontalAlignment: Text.AlignRight
                    text: modelData
                    font.pixelSize: 9
                    font.weight: Font.Medium
                    color: Theme.secondaryText
                }
                Rectangle {
                    x: canvas.controller.timeColumnWidth + 8
                    width: parent.width - x
                    height: 1
                    color: Theme.tint(Theme.secondaryText, 0.1)
                }
            }
        }

        Repeater {
            model: canvas.controller.chapters
            TimelineChapterBox {
                controller: canvas.controller
            }
        }

        Item {
            objectName: "nowLine"
            visible: canvas.controller.nowLineY >= 0
            x: canvas.controller.timeColumnWidth + 8
            y: canvas.controller.nowLineY
            width: parent.width - x
            Rectangle {
                x: -3.5
                y: -3.5
                width: 7
                height: 7
                radius: 3.5
                color: Theme.red
            }
            Rectangle {
                y: -0.75
                width: parent.width
                height: 1.5
                color: Theme.red
            }
        }
    }
}
