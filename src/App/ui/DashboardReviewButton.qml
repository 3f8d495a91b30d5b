import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The sidebar's way to the review screen while activities wait for a category. Selected it is
// orange with white texts; otherwise a light orange wash with the usual texts. The last page tab of
// the sidebar to a screen reader and to the keyboard.
TabButton {
    // Qt 6.4's buttons offer Press to a screen reader but do nothing on it: do what a click does.
    Accessible.onPressAction: clicked()
    id: button

    required property DashboardController controller

    readonly property bool selected: controller.shownTab === controller.reviewTab

    padding: 10
    focusPolicy: Qt.StrongFocus
    // Selected by the controller, not by its own check state.
    checkable: false
    Accessible.name: controller.reviewButton.title + ", " + controller.reviewButton.detail
    Accessible.selectable: true
    Accessible.selected: selected
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Keys.onUpPressed: nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)
    onClicked: controller.openReview()

    background: Rectangle {
        radius: 8
        color: button.selected ? Theme.orange : Theme.tint(Theme.orange, Theme.faintWash)
        border.width: button.visualFocus ? 2 : 0
        border.color: button.selected ? Theme.onColor : palette.highlight
    }
    contentItem: RowLayout {
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
}
