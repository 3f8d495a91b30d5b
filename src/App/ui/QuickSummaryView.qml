import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The day at a glance, 320 wide: header, current session, Pomodoro timer, pending banner, today's
// breakdown, recent activities and the footer, each a card of its own over the one controller. The
// breakdown and the recent list scroll when the popover is too short for them.
Pane {
    id: root

    required property QuickSummaryController controller

    implicitWidth: 320
    implicitHeight: 420
    padding: 0

    Shortcut {
        sequence: StandardKey.Cancel
        onActivated: root.Window.window.close()
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        SummaryHeader {
            controller: root.controller
        }
        Divider {}
        SummarySessionRow {
            controller: root.controller
        }
        Divider {}
        SummaryTimerCard {
            controller: root.controller
        }
        Divider {}
        SummaryPendingBanner {
            controller: root.controller
        }
        Divider {
            visible: root.controller.pending.count > 0
        }

        ScrollView {
            id: scroller
            objectName: "scroller"
            Layout.fillWidth: true
            Layout.fillHeight: true
            contentWidth: availableWidth
            clip: true
            // The recent list often runs below the fold: say so with a visible bar.
            ScrollBar.vertical.policy: contentHeight > availableHeight ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff

            ColumnLayout {
                width: scroller.availableWidth
                spacing: 0

                SummaryBreakdownCard {
                    controller: root.controller
                }
                Divider {}
                SummaryRecentCard {
                    controller: root.controller
                }
            }
        }

        Divider {}
        SummaryFooter {
            controller: root.controller
        }
    }
}
