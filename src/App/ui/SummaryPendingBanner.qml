import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// Shown while activities wait for a category: the count "… activities need review" over "Tap to
// categorize them", on an orange wash. A click (or Space on it) opens the dashboard's review screen.
AbstractButton {
    // Qt 6.4's buttons offer Press to a screen reader but do nothing on it: do what a click does.
    Accessible.onPressAction: clicked()
    id: banner

    required property QuickSummaryController controller

    objectName: "pendingBanner"
    visible: controller.pending.count > 0
    Layout.fillWidth: true
    implicitHeight: bannerRow.implicitHeight + 12
    leftPadding: Theme.margin
    rightPadding: Theme.margin
    Accessible.name: controller.pending.bannerText + ". " + controller.labels.tapToCategorize
    onClicked: controller.openReview()

    background: Rectangle {
        color: Theme.tint(Theme.orange, banner.down ? Theme.tileHover : Theme.wash)
    }

    contentItem: RowLayout {
        id: bannerRow
        spacing: Theme.spacingLarge
        SymbolIcon {
            name: "exclamationmark.circle.fill"
            color: Theme.orange
            size: 18
        }
        ColumnLayout {
            spacing: 1
            Layout.fillWidth: true
            Label {
                objectName: "pendingBannerText"
                horizontalAlignment: Text.AlignLeft
                text: banner.controller.pending.bannerText
                font.pixelSize: Theme.fontSmall
                font.weight: Font.DemiBold
                elide: Text.ElideRight
                Layout.fillWidth: true
            }
            Label {
                objectName: "pendingBannerHint"
                text: banner.controller.labels.tapToCategorize
                color: Theme.secondaryText
                font.pixelSize: Theme.fontCaption
            }
        }
        SymbolIcon {
            name: "chevron.right"
            color: Theme.secondaryText
            size: 12
        }
    }
}
