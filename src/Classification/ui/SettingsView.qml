import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The settings tab: the category list with its badges and edit and delete buttons, "Add Category",
// throwing old data away, starting at login and the browsers' extension.
Item {
    id: root

    required property SettingsController controller

    ScrollView {
        id: scroll
        objectName: "settingsScroll"
        anchors.fill: parent
        contentWidth: availableWidth

        ColumnLayout {
            width: Math.min(scroll.availableWidth - 48, 720)
            x: (scroll.availableWidth - width) / 2
            spacing: Theme.spacingLarge

            Item {
                implicitHeight: 14
            }
            Text {
                Layout.fillWidth: true
                text: "Settings"
                color: Theme.primaryText
                font.pixelSize: Theme.fontTitle
                font.weight: Font.Bold
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            SectionTitle {
                Layout.topMargin: Theme.spacing
                text: "Categories"
            }
            Rectangle {
                Layout.fillWidth: true
                implicitHeight: rows.implicitHeight
                radius: 10
                color: palette.base
                border.width: 1
                border.color: Theme.border

                ColumnLayout {
                    id: rows
                    objectName: "categoryRows"
                    anchors.left: parent.left
                    anchors.right: parent.right
                    spacing: 0

                    Repeater {
                        model: root.controller.categories

                        SettingsCategoryRow {
                            Layout.fillWidth: true
                            onEditRequested: row => editSheet.edit(row)
                            onDeleteRequested: categoryID => root.controller.remove(categoryID)
                        }
                    }
                }
            }
            Button {
                objectName: "addCategory"
                text: "Add Category"
                icon.source: Icons.source("plus.circle.fill")
                icon.color: palette.highlight
                Accessible.name: text
                Accessible.onPressAction: clicked()
                onClicked: newSheet.open()
            }

            SectionTitle {
                Layout.topMargin: Theme.margin
                text: "Data Management"
            }
            RowLayout {
                Layout.fillWidth: true
                spacing: Theme.spacing

                Repeater {
                    model: [{ "name": "deleteThreeMonths", "text": "Delete data older than 3 months" },
                        { "name": "deleteOneYear", "text": "Delete data older than 1 year" }]

                    Button {
                        id: retention
                        required property var modelData
                        objectName: modelData.name
                        text: modelData.text
                        enabled: !root.controller.compacting
                        icon.source: Icons.source("trash")
                        icon.color: Theme.red
                        palette.buttonText: Theme.red
                        Accessible.name: text
                        Accessible.description: "Deletes the activities at once, without asking"
                        Accessible.onPressAction: clicked()
                        onClicked: retention.modelData.name === "deleteThreeMonths"
                                   ? root.controller.deleteOlderThanThreeMonths()
                                   : root.controller.deleteOlderThanOneYear()
                    }
                }
                BusyIndicator {
                    objectName: "compacting"
                    implicitWidth: 24
                    implicitHeight: 24
                    visible: root.controller.compacting
                    running: visible
                    Accessible.name: "Giving the space back to the disk"
                }
            }

            SectionTitle {
                Layout.topMargin: Theme.margin
                text: "Desktop"
                visible: StartAtLoginController.available
            }
            StartAtLoginSwitch {
                objectName: "startAtLogin"
                visible: StartAtLoginController.available
            }
            BrowserBridgeStatus {
                objectName: "browserBridgeStatus"
                Layout.fillWidth: true
                Layout.topMargin: Theme.margin
                Layout.bottomMargin: 24
            }
        }
    }

    NewCategorySheet {
        id: newSheet
        controller: root.controller
    }
    EditCategorySheet {
        id: editSheet
        controller: root.controller
    }
}
