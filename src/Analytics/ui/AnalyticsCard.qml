import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// A card of the analytics page: a rounded panel in the control background colour with its title, an
// optional line under it, an optional note at the right, and the content below.
Rectangle {
    id: card

    property string title
    property string subtitle
    // The right side of the title row, e.g. the session count.
    property alias trailing: trailingRow.data
    default property alias content: body.data

    Layout.fillWidth: true
    implicitHeight: column.implicitHeight + 2 * Theme.margin
    radius: 10
    color: palette.base
    border.width: 1
    border.color: Theme.separator

    ColumnLayout {
        id: column
        anchors.fill: parent
        anchors.margins: Theme.margin
        spacing: Theme.spacingLarge

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.spacing

            ColumnLayout {
                Layout.fillWidth: true
                spacing: 2

                Text {
                    objectName: card.objectName + "Title"
                    Layout.fillWidth: true
                    text: card.title
                    color: Theme.primaryText
                    font.pixelSize: Theme.fontHeadline - 2
                    font.weight: Font.DemiBold
                    elide: Text.ElideRight
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                Label {
                    objectName: card.objectName + "Subtitle"
                    Layout.fillWidth: true
                    visible: card.subtitle !== ""
                    text: card.subtitle
                    color: Theme.secondaryText
                    font.pixelSize: Theme.fontCaption
                    elide: Text.ElideRight
                }
            }
            RowLayout {
                id: trailingRow
                Layout.alignment: Qt.AlignTop
                spacing: Theme.spacing
            }
        }

        ColumnLayout {
            id: body
            Layout.fillWidth: true
            spacing: Theme.spacing
        }
    }
}
