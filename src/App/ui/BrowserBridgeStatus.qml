import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The Settings page's browser section: per browser, whether Larkspan's extension reported its
// active tab in the last minute.
ColumnLayout {
    id: root

    // The model reads the bridge only while some view of it is on screen.
    readonly property bool shown: visible && Window.visibility !== Window.Hidden

    spacing: 8
    onShownChanged: BrowserBridgeStatusModel.setShown(root, shown)
    Component.onCompleted: BrowserBridgeStatusModel.setShown(root, shown)
    Component.onDestruction: BrowserBridgeStatusModel.setShown(root, false)

    Label {
        objectName: "browserBridgeTitle"
        Layout.fillWidth: true
        text: "Browser tabs"
        color: Theme.primaryText
        font.pixelSize: Theme.fontHeadline
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
    }
    Label {
        Layout.fillWidth: true
        wrapMode: Text.Wrap
        text: "With Larkspan's extension in a browser, activities record the page you are on."
        color: Theme.secondaryText
        font.pixelSize: Theme.fontBody
    }

    Repeater {
        model: BrowserBridgeStatusModel

        RowLayout {
            required property string name
            required property bool reported
            required property string detail

            objectName: "browser-" + name
            Layout.fillWidth: true
            spacing: 10
            Accessible.role: Accessible.ListItem
            Accessible.name: name + ": " + detail

            Rectangle {
                implicitWidth: 8
                implicitHeight: 8
                radius: 4
                color: parent.reported ? palette.highlight : Theme.tint(Theme.primaryText, Theme.track)
            }
            Label {
                Layout.fillWidth: true
                text: parent.name
                color: Theme.primaryText
                font.pixelSize: Theme.fontBody
            }
            Label {
                text: parent.detail
                color: Theme.secondaryText
                font.pixelSize: Theme.fontBody
            }
        }
    }
}
