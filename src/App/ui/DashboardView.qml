import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The dashboard window's content: the sidebar (title, live session card, tab list, review button)
// beside the detail area that shows the selected tab's screen.
Rectangle {
    id: root

    required property DashboardController controller
    required property DashboardScreens screens

    implicitWidth: 1100
    implicitHeight: 740
    color: palette.base

    SplitView {
        anchors.fill: parent
        orientation: Qt.Horizontal

        handle: Rectangle {
            implicitWidth: 1
            color: Theme.separator
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
                    font.pixelSize: Theme.fontTitle
                    font.weight: Font.Bold
                }

                DashboardLiveCard {
                    objectName: "liveCard"
                    Layout.fillWidth: true
                    visible: root.controller.liveCard.shown
                    controller: root.controller
                }

                ColumnLayout {
                    objectName: "tabList"
                    Layout.fillWidth: true
                    spacing: 2

                    Repeater {
                        model: root.controller.tabs

                        DashboardTabRow {
                            id: tabRow
                            objectName: "tab-" + label
                            Layout.fillWidth: true
                            selected: root.controller.shownTab === label
                            onClicked: root.controller.selectedTab = tabRow.label
                        }
                    }
                }

                Rectangle {
                    objectName: "reviewDivider"
                    Layout.fillWidth: true
                    Layout.leftMargin: 6
                    Layout.rightMargin: 6
                    implicitHeight: 1
                    visible: root.controller.reviewButton.shown
                    color: Theme.separator
                }

                DashboardReviewButton {
                    objectName: "reviewButton"
                    Layout.fillWidth: true
                    visible: root.controller.reviewButton.shown
                    controller: root.controller
                }

                Item {
                    Layout.fillHeight: true
                }
            }
        }

        // The selected tab's screen, made each time its tab is shown; what it keeps lives in its
        // controller.
        Loader {
            id: detail
            objectName: "detail"
            SplitView.fillWidth: true
            // One screen per tab label. (A switch in a binding hangs the compiled QML of Qt 6.4.)
            sourceComponent: ({
                "Timeline": timelineScreen,
                "Focus": focusScreen,
                "Calendar": calendarScreen,
                "Analytics": analyticsScreen,
                "Settings": settingsScreen,
                "Review": reviewScreen,
            })[root.controller.shownTab]

            Component {
                id: timelineScreen

                TimelineView {
                    controller: root.screens.timeline
                }
            }

            Component {
                id: focusScreen

                FocusView {
                    controller: root.screens.focus
                }
            }

            Component {
                id: calendarScreen

                CalendarView {
                    controller: root.screens.calendar
                }
            }

            Component {
                id: analyticsScreen

                AnalyticsView {
                    controller: root.screens.analytics
                }
            }

            Component {
                id: settingsScreen

                SettingsView {
                    controller: root.screens.settings
                }
            }

            Component {
                id: reviewScreen

                PendingReviewView {
                    controller: root.screens.review
                }
            }
        }
    }
}
