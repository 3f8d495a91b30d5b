import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The sidebar's way to the review screen while activities wait for a category. Selected it is
// orange with white texts; otherwise a light orange wash with the usual texts.
Rectangle {
    id: button

    required property DashboardController controller
    required property color secondaryText

    readonly property bool selected: controller.shownTab === controller.reviewTab
    readonly property color orange: controller.reviewColor

    implicitHeight: content.implicitHeight + 20
    radius: 8
    color: selected ? orange : Qt.rgba(orange.r, orange.g, orange.b, 0.1)

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
            color: button.selected ? "white" : button.orange
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2

            Label {
                objectName: "reviewTitle"
                Layout.fillWidth: true
                text: button.controller.reviewTitle
                elide: Text.ElideRight
                color: button.selected ? "white" : palette.windowText
                font.pixelSize: 13
                font.weight: Font.DemiBold
            }
            Label {
                objectName: "reviewDetail"
                Layout.fillWidth: true
                text: button.controller.reviewDetail
                elide: Text.ElideRight
                color: button.selected ? Qt.rgba(1, 1, 1, 0.8) : button.secondaryText
                font.pixelSize: 11
            }
        }
        SymbolIcon {
            objectName: "reviewChevron"
            Layout.alignment: Qt.AlignVCenter
            name: "chevron.right"
            size: 14
            color: button.selected ? Qt.rgba(1, 1, 1, 0.6) : button.secondaryText
        }
    }

    MouseArea {
        anchors.fill: parent
        cursorShape: Qt.PointingHandCursor
        onClicked: button.controller.openReview()
    }
}
