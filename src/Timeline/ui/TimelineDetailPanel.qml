import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The panel at the right: the selected block (list mode) or chapter (canvas mode) with its detail rows,
// its address and notes, the category mix, edit and delete, the category grid and its activities.
Rectangle {
    id: panel

    required property TimelineController controller
    readonly property var value: controller.panel

    color: palette.window

    component SectionLabel: Label {
        color: Theme.secondaryText
        font.pixelSize: Theme.fontCaption
        font.weight: Font.DemiBold
    }

    ScrollView {
        id: scroller
        anchors.fill: parent
        contentWidth: availableWidth
        clip: true

        ColumnLayout {
            width: scroller.availableWidth - 28
            x: 14
            spacing: 12

            RowLayout {
                Layout.topMargin: 14
                Text {
                    text: "Detail"
                    color: Theme.primaryText
                    font.pixelSize: Theme.fontHeadline
                    font.weight: Font.DemiBold
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                Item {
                    Layout.fillWidth: true
                }
                Label {
                    visible: panel.value.isManual
                    text: "Manual"
                    color: palette.highlight
                    font.pixelSize: Theme.fontTiny
                    leftPadding: 7
                    rightPadding: 7
                    topPadding: 2
                    bottomPadding: 2
                    background: Rectangle {
                        radius: height / 2
                        color: Theme.tint(palette.highlight, 0.15)
                    }
                }
                TimelineSymbolButton {
                    objectName: "closePanel"
                    symbol: "xmark.circle.fill"
                    help: "Close"
                    tint: Theme.secondaryText
                    onClicked: panel.controller.closePanel()
                }
            }

            Rectangle {
                Layout.fillWidth: true
                implicitHeight: hero.implicitHeight + 24
                radius: 10
                color: Theme.tint(panel.value.color, 0.1)
                RowLayout {
                    id: hero
                    anchors.fill: parent
                    anchors.margins: 12
                    spacing: 10
                    EmojiLabel {
                        text: panel.value.icon
                        font.pixelSize: Theme.fontTitle
                        Layout.preferredWidth: 28
                    }
                    ColumnLayout {
                        Layout.fillWidth: true
                        spacing: 2
                        Label {
                            objectName: "panelTitle"
                            Layout.fillWidth: true
                            horizontalAlignment: Text.AlignLeft
                            text: panel.value.title
                            textFormat: Text.PlainText
                            font.pixelSize: Theme.fontBody
                            font.weight: Font.Medium
                            wrapMode: Text.Wrap
                            maximumLineCount: 2
                            elide: Text.ElideRight
                        }
                        Label {
                            objectName: "panelCaption"
                            visible: text.length > 0
                            Layout.fillWidth: true
                            horizontalAlignment: Text.AlignLeft
                            text: panel.value.caption
                            textFormat: Text.PlainText
                            color: Theme.secondaryText
                            font.pixelSize: Theme.fontCaption
                            elide: Text.ElideRight
                            maximumLineCount: 1
                        }
                    }
                }
            }

            Repeater {
                model: panel.controller.panelRows
                RowLayout {
                    required property string label
                    required property string value
                    objectName: "detail-" + label
                    Layout.fillWidth: true
                    spacing: 0
                    Label {
                        Layout.preferredWidth: 60
                        text: label
                        color: Theme.secondaryText
                        font.pixelSize: Theme.fontCaption
                    }
                    Label {
                        objectName: "detailValue-" + label
                        Layout.fillWidth: true
                        horizontalAlignment: Text.AlignLeft
                        text: value
                        textFormat: Text.PlainText
                        font.pixelSize: Theme.fontSmall
                        font.weight: Font.Medium
                        elide: Text.ElideRight
                    }
                }
            }

            SectionLabel {
                visible: panel.value.url.length > 0
                text: "URL"
            }
            TextEdit {
                visible: panel.value.url.length > 0
                Layout.fillWidth: true
                readOnly: true
                selectByMouse: true
                text: panel.value.url
                textFormat: TextEdit.PlainText
                wrapMode: TextEdit.WrapAnywhere
                color: Theme.secondaryText
                font.pixelSize: Theme.fontTiny
                Accessible.name: "URL " + text
                // At most four lines of a long address.
                Layout.maximumHeight: 4 * font.pixelSize * 1.4
                clip: true
            }
            SectionLabel {
                visible: panel.value.notes.length > 0
                text: "Notes"
            }
            Label {
                visible: panel.value.notes.length > 0
                Layout.fillWidth: true
                text: panel.value.notes
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                maximumLineCount: 4
                elide: Text.ElideRight
                font.pixelSize: Theme.fontSmall
            }

            ColumnLayout {
                visible: panel.controller.panelMix.count > 0
                Layout.fillWidth: true
                spacing: 6
                Divider {
                    Layout.fillWidth: true
                }
                SectionLabel {
                    text: "Category mix"
                }
                Repeater {
                    model: panel.controller.panelMix
                    RowLayout {
                        required property string name
                        required property color color
                        required property string percent
                        Layout.fillWidth: true
                        spacing: 6
                        Rectangle {
                            implicitWidth: 7
                            implicitHeight: 7
                            radius: 3.5
                            color: parent.color
                        }
                        Label {
                            Layout.fillWidth: true
                            text: name
                            font.pixelSize: Theme.fontSmall
                            elide: Text.ElideRight
                        }
                        Label {
                            text: percent
                            font.pixelSize: Theme.fontSmall
                            color: Theme.secondaryText
                        }
                    }
                }
            }

            Divider {
                visible: !panel.value.isChapter
                Layout.fillWidth: true
            }
            RowLayout {
                visible: !panel.value.isChapter
                spacing: 8
                Button {
                    objectName: "panelEdit"
                    text: "Edit"
                    icon.source: Icons.tintedSource("pencil", palette.buttonText)
                    font.pixelSize: Theme.fontSmall
                    focusPolicy: Qt.StrongFocus
                    Accessible.name: text
                    Accessible.onPressAction: clicked()
                    onClicked: panel.controller.editPanelPrimary()
                }
                Button {
                    objectName: "panelDelete"
                    text: "Delete"
                    icon.source: Icons.tintedSource("trash", Theme.red)
                    palette.buttonText: Theme.red
                    font.pixelSize: Theme.fontSmall
                    focusPolicy: Qt.StrongFocus
                    Accessible.name: text
                    Accessible.onPressAction: clicked()
                    onClicked: panel.controller.deletePanelPrimary()
                }
            }

            Divider {
                Layout.fillWidth: true
            }
            SectionLabel {
                text: panel.value.gridTitle
            }
            TimelineCategoryGrid {
                objectName: "panelGrid"
                Layout.fillWidth: true
                columns: 3
                model: panel.controller.panelCategories
                currentID: panel.value.currentCategoryID
                namePrefix: "panelCategory-"
                onPicked: id => panel.controller.recategorizePanel(id)
            }

            ColumnLayout {
                visible: panel.value.listTitle.length > 0
                Layout.fillWidth: true
                Layout.bottomMargin: 14
                spacing: 6
                Divider {
                    Layout.fillWidth: true
                }
                SectionLabel {
                    objectName: "panelListTitle"
                    text: panel.value.listTitle
                }
                Repeater {
                    model: panel.controller.panelActivities
                    RowLayout {
                        id: visit
                        required property int index
                        required property double activityID
                        required property string icon
                        required property string title
                        required property string time
                        required property string duration
                        Layout.fillWidth: true
                        spacing: 6
                        EmojiLabel {
                            visible: visit.icon.length > 0
                            text: visit.icon
                            font.pixelSize: 12
                            Layout.preferredWidth: 16
                        }
                        ColumnLayout {
                            Layout.fillWidth: true
                            spacing: 0
                            Label {
                                visible: !panel.value.isChapter
                                text: visit.time
                                color: Theme.secondaryText
                                font.pixelSize: Theme.fontTiny
                            }
                            Label {
                                Layout.fillWidth: true
                                horizontalAlignment: Text.AlignLeft
                                text: visit.title
                                textFormat: Text.PlainText
                                font.pixelSize: Theme.fontSmall
                                elide: Text.ElideRight
                                maximumLineCount: 1
                            }
                            Label {
                                visible: panel.value.isChapter
                                text: visit.time
                                color: Theme.secondaryText
                                font.pixelSize: Theme.fontTiny
                            }
                        }
                        Label {
                            text: visit.duration
                            color: Theme.secondaryText
                            font.pixelSize: Theme.fontTiny
                        }
                        TimelineSymbolButton {
                            objectName: "editActivity" + visit.index
                            symbol: "pencil"
                            help: "Edit " + visit.title
                            tint: palette.highlight
                            symbolSize: 13
                            onClicked: panel.controller.editPanelActivity(visit.activityID)
                        }
                    }
                }
            }
        }
    }
}
