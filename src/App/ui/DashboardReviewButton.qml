import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The sidebar's way to the review screen while activities wait for a category. Selected it is
// orange with white texts; otherwise a light orange wash with the usual texts.
Rectangle {
    id: button

    required property DashboardController controller

    readonly property bool selected: controller.shownTab === controller.reviewTab

    implicitHeight: content.implicitHeight + 20
    radius: 8
    color: selected ? Theme.orange : Theme.tint(Theme.orange, Theme.faintWash)
    Accessible.role: Accessible.Button
    Accessible.name: controller.reviewButton.title + ", " + controller.reviewButton.detail
    Accessible.onPressAction: controller.openReview()

    RowLayout {
        id: content
        anchors.fill: parent
        anchors.leftMargin: 10
        anchors.rightMargin: 10
        spacing: 10

        SymbolIcon {
            objectName: "reviewSymbol"
            Layout.alignment: Qt.AlignVCenter
            name: "exclamationmark.circle.fill"
            size: 20
            // On the orange background an orange symbol would vanish.
            color: button.selected ? Theme.onColor : Theme.orange
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2

            Label {
                objectName: "reviewTitle"
                Layout.fillWidth: true
                text: button.controller.reviewButton.title
                elide: Text.ElideRight
                color: button.selected ? Theme.onColor : palette.windowText
                font.pixelSize: Theme.fontBody
                font.weight: Font.DemiBold
            }
            Label {
                objectName: "reviewDetail"
                Layout.fillWidth: true
                text: button.controller.reviewButton.detail
                elide: Text.ElideRight
                color: button.selected ? Theme.onColorSecondary : Theme.secondaryText
                font.pixelSize: Theme.fontCaption
            }
        }
        SymbolIcon {
            objectName: "reviewChevron"
            Layout.alignment: Qt.AlignVCenter
            name: "chevron.right"
            size: 14
            color: button.selected ? Theme.onColorTertiary : Theme.secondaryText
        }
    }

    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.PointingHandCursor
        onClicked: button.controller.openReview()
    }
}
