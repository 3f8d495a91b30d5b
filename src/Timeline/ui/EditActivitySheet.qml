import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// Corrects one stored activity: its times, its category and its notes.
TimelineSheet {
    id: edit

    saveText: "Save Changes"

    RowLayout {
        Layout.fillWidth: true
        Text {
            Layout.fillWidth: true
            text: "Edit Activity"
            color: Theme.primaryText
            font.pixelSize: Theme.fontTitle
            font.weight: Font.Bold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Label {
            visible: edit.controller.sheet.recordIsManual
            text: "Manual"
            color: palette.highlight
            font.pixelSize: Theme.fontCaption
            leftPadding: 8
            rightPadding: 8
            topPadding: 2
            bottomPadding: 2
            background: Rectangle {
                radius: height / 2
                color: Theme.tint(palette.highlight, 0.15)
            }
        }
    }
    Rectangle {
        Layout.fillWidth: true
        implicitHeight: identity.implicitHeight + 20
        radius: 8
        color: Theme.tint(Theme.secondaryText, 0.06)
        RowLayout {
            id: identity
            anchors.fill: parent
            anchors.margins: 10
            spacing: 10
            EmojiLabel {
                text: edit.controller.sheet.icon
                font.pixelSize: Theme.fontTitle
                Layout.preferredWidth: 28
            }
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 1
                Label {
                    objectName: "sheetTitle"
                    Layout.fillWidth: true
                    horizontalAlignment: Text.AlignLeft
                    text: edit.controller.sheet.title
                    textFormat: Text.PlainText
                    font.pixelSize: Theme.fontBody
                    font.weight: Font.Medium
                    elide: Text.ElideRight
                    maximumLineCount: 1
                }
                Label {
                    visible: text.length > 0
                    Layout.fillWidth: true
                    horizontalAlignment: Text.AlignLeft
                    text: edit.controller.sheet.appName
                    textFormat: Text.PlainText
                    color: Theme.secondaryText
                    font.pixelSize: Theme.fontCaption
                    elide: Text.ElideRight
                }
            }
        }
    }
    TimelineTimeCard {
        Layout.fillWidth: true
        controller: edit.controller
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 8
        Label {
            text: "Category"
            font.pixelSize: Theme.fontSmall
            font.weight: Font.DemiBold
        }
        TimelineCategoryGrid {
            Layout.fillWidth: true
            columns: 5
            model: edit.controller.sheetCategories
            currentID: edit.controller.sheet.categoryID
            otherOpacity: 0.08
            namePrefix: "editCategory-"
            onPicked: id => edit.controller.setSheetCategory(id)
        }
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 8
        Label {
            text: "Notes"
            font.pixelSize: Theme.fontSmall
            font.weight: Font.DemiBold
        }
        TimelineNotesField {
            Layout.fillWidth: true
            controller: edit.controller
            placeholderText: "Add notes…"
        }
    }
}
