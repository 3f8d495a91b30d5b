import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The dashboard window's content: the sidebar (title, live session card, tab list, review button)
// beside the detail area that shows the selected tab's screen.
Rectangle {
    id: root

    required property DashboardController controller

    readonly property color secondaryText: Qt.rgba(palette.windowText.r, palette.windowText.g,
                                                   palette.windowText.b, 0.62)
    // Hairlines that show on light and dark palettes alike.
    // The review screen keeps the orange of its button; the others the palette's accent.
    readonly property color detailAccent: controller.shownTab === controller.reviewTab
                                          ? controller.reviewColor : palette.highlight
    readonly property color separator: Qt.rgba(palette.windowText.r, palette.windowText.g,
                                               palette.windowText.b, 0.12)

    implicitWidth: 1100
    implicitHeight: 740
    color: palette.base

    SplitView {
        anchors.fill: parent
        orientation: Qt.Horizontal

        handle: Rectangle {
            implicitWidth: 1
            color: root.separator
        }

        Rectangle {
            objectName: "sidebar"
            SplitView.minimumWidth: 200
            SplitView.preferredWidth: 240
            SplitView.maximumWidth: 360
            color: palette.window

            ColumnLayout {
                anchors.fill: parent
                anchors.margins: 12
                anchors.topMargin: 16
                spacing: 12

                Label {
                    objectName: "sidebarTitle"
                    Layout.leftMargin: 6
                    text: "Larkspan"
                    color: palette.windowText
                    font.pixelSize: 20
                    font.weight: Font.Bold
                }

                DashboardLiveCard {
                    objectName: "liveCard"
                    Layout.fillWidth: true
                    visible: root.controller.hasSession
                    controller: root.controller
                    secondaryText: root.secondaryText
                }

                ColumnLayout {
                    objectName: "tabList"
                    Layout.fillWidth: true
                    spacing: 2

                    Repeater {
                        model: root.controller.tabs

                        DashboardTabRow {
                            required property var modelData
                            objectName: "tab-" + modelData.label
                            Layout.fillWidth: true
                            label: modelData.label
                            symbol: modelData.symbol
                            selected: root.controller.shownTab === modelData.label
                            onClicked: root.controller.selectedTab = modelData.label
                        }
                    }
                }

                Rectangle {
                    objectName: "reviewDivider"
                    Layout.fillWidth: true
                    Layout.leftMargin: 6
                    Layout.rightMargin: 6
                    implicitHeight: 1
                    visible: root.controller.hasReviewButton
                    color: root.separator
                }

                DashboardReviewButton {
                    objectName: "reviewButton"
                    Layout.fillWidth: true
                    visible: root.controller.hasReviewButton
                    controller: root.controller
                    secondaryText: root.secondaryText
                }

                Item {
                    Layout.fillHeight: true
                }
            }
        }

        // Each tab's screen comes later; until then the tab says what it will show.
        Item {
            objectName: "detail"
            SplitView.fillWidth: true

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
                    color: Qt.rgba(root.detailAccent.r, root.detailAccent.g, root.detailAccent.b, 0.12)

                    SymbolIcon {
                        objectName: "detailSymbol"
                        anchors.centerIn: parent
                        name: root.controller.shownSymbol
                        size: 40
                        color: root.detailAccent
                    }
                }
                Label {
                    objectName: "detailTitle"
                    Layout.fillWidth: true
                    horizontalAlignment: Text.AlignHCenter
                    text: root.controller.shownTab
                    color: palette.windowText
                    font.pixelSize: 24
                    font.weight: Font.DemiBold
                }
                StartAtLoginSwitch {
                    objectName: "startAtLogin"
                    Layout.fillWidth: true
                    visible: root.controller.shownTab === "Settings" && StartAtLoginController.available
                    secondaryText: root.secondaryText
                }
                BrowserBridgeStatus {
                    objectName: "browserBridgeStatus"
                    Layout.fillWidth: true
                    Layout.bottomMargin: 12
                    visible: root.controller.shownTab === "Settings"
                    secondaryText: root.secondaryText
                }
                Label {
                    objectName: "detailLine"
                    Layout.fillWidth: true
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.Wrap
                    text: root.controller.shownComingLine
                    color: root.secondaryText
                    font.pixelSize: 14
                }
            }
        }
    }
}
