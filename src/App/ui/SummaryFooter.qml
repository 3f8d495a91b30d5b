import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// "Open Dashboard" on the left; on the right, while activities wait, their count in orange.
RowLayout {
    id: footer

    required property QuickSummaryController controller

    Layout.fillWidth: true
    Layout.leftMargin: Theme.spacing
    Layout.rightMargin: Theme.margin
    Layout.topMargin: 4
    Layout.bottomMargin: 4
    spacing: Theme.spacing

    ToolButton {
        objectName: "openDashboardButton"
        text: footer.controller.labels.openDashboard
        icon.source: Icons.source("chart.bar.xaxis")
        icon.color: palette.buttonText
        icon.width: 16
        icon.height: 16
        font.pixelSize: Theme.fontSmall
        Accessible.onPressAction: clicked()
        onClicked: footer.controller.openDashboard()
    }
    Item {
        Layout.fillWidth: true
    }
    Label {
        objectName: "pendingFooter"
        visible: footer.controller.pending.count > 0
        text: footer.controller.pending.footerText
        color: Theme.orange
        font.pixelSize: Theme.fontCaption
        font.weight: Font.DemiBold
    }
}
