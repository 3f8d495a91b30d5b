import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// A tab whose screen is not built yet: its symbol, its name and what it will show.
Item {
    id: root

    required property DashboardController controller
    required property color accent

    ColumnLayout {
        anchors.centerIn: parent
        width: Math.min(parent.width - 64, 520)
        spacing: 10

        Rectangle {
            Layout.alignment: Qt.AlignHCenter
            Layout.bottomMargin: 8
            implicitWidth: 88
            implicitHeight: 88
            radius: 44
            color: Theme.tint(root.accent, Theme.wash)

            SymbolIcon {
                objectName: "detailSymbol"
                anchors.centerIn: parent
                name: root.controller.shownSymbol
                size: 40
                color: root.accent
            }
        }
        Text {
            objectName: "detailTitle"
            Layout.fillWidth: true
            Accessible.role: Accessible.Heading
            Accessible.name: text
            horizontalAlignment: Text.AlignHCenter
            text: root.controller.shownTab
            color: Theme.primaryText
            font.pixelSize: Theme.fontLargeTitle
            font.weight: Font.DemiBold
        }
        Label {
            objectName: "detailLine"
            Layout.fillWidth: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: root.controller.shownComingLine
            color: Theme.secondaryText
            font.pixelSize: 14
        }
    }
}
