import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtQuick.Shapes
import Larkspan

// The day at a glance, 320 wide: header, current session, Pomodoro timer, pending banner, today's
// breakdown, recent activities and the footer. Everything shown comes from the controller; the
// breakdown and the recent list scroll when the popover is too short for them.
Pane {
    id: root

    required property QuickSummaryController controller

    readonly property color secondaryText: Qt.rgba(palette.windowText.r, palette.windowText.g,
                                                   palette.windowText.b, 0.62)
    readonly property color divider: Qt.rgba(palette.windowText.r, palette.windowText.g,
                                             palette.windowText.b, 0.12)
    readonly property color orange: "#FF9500"
    readonly property var labels: controller.labels
    readonly property var session: controller.session
    readonly property var timer: controller.timer

    implicitWidth: 320
    implicitHeight: 420
    padding: 0

    component Divider: Rectangle {
        Layout.fillWidth: true
        implicitHeight: 1
        color: root.divider
    }

    // Category icons and timer marks: the colour emoji font first, since a text font that happens to
    // hold the same code point (☕, ⌨) would draw it as a flat glyph.
    component Emoji: Label {
        font.family: "Noto Color Emoji"
        font.pixelSize: 16
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Layout.preferredWidth: 24
    }

    component SectionTitle: Label {
        font.pixelSize: 11
        font.weight: Font.DemiBold
        font.capitalization: Font.AllUppercase
        font.letterSpacing: 0.4
        color: root.secondaryText
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        // Header
        RowLayout {
            Layout.fillWidth: true
            Layout.leftMargin: 14
            Layout.rightMargin: 14
            Layout.topMargin: 10
            Layout.bottomMargin: 8
            spacing: 8
            ColumnLayout {
                spacing: 1
                Layout.fillWidth: true
                Label {
                    text: root.labels.today
                    font.pixelSize: 17
                    font.weight: Font.Bold
                }
                Label {
                    objectName: "dateText"
                    text: root.controller.dateText
                    color: root.secondaryText
                    font.pixelSize: 11
                    elide: Text.ElideRight
                    Layout.fillWidth: true
                }
            }
            ColumnLayout {
                visible: root.controller.totalText !== ""
                spacing: 1
                Label {
                    objectName: "totalText"
                    text: root.controller.totalText
                    font.pixelSize: 17
                    font.weight: Font.Bold
                    Layout.alignment: Qt.AlignRight
                }
                Label {
                    text: root.labels.tracked
                    color: root.secondaryText
                    font.pixelSize: 11
                    Layout.alignment: Qt.AlignRight
                }
            }
        }

        Divider {}

        // Current session
        RowLayout {
            objectName: "sessionRow"
            Layout.fillWidth: true
            Layout.leftMargin: 14
            Layout.rightMargin: 14
            Layout.topMargin: 6
            Layout.bottomMargin: 6
            spacing: 10
            Emoji {
                text: root.session.icon
                font.pixelSize: 20
                Layout.preferredWidth: 28
            }
            ColumnLayout {
                spacing: 1
                Layout.fillWidth: true
                Label {
                    objectName: "sessionTitle"
                    horizontalAlignment: Text.AlignLeft  // right-to-left titles too, so rows line up
                    text: root.session.title
                    font.pixelSize: 13
                    font.weight: Font.Medium
                    elide: Text.ElideRight
                    maximumLineCount: 1
                    Layout.fillWidth: true
                }
                Label {
                    objectName: "sessionSubtitle"
                    horizontalAlignment: Text.AlignLeft
                    visible: root.session.hasSession
                    text: root.session.subtitle
                    color: root.secondaryText
                    font.pixelSize: 11
                    elide: Text.ElideRight
                    Layout.fillWidth: true
                }
            }
            Rectangle {
                objectName: "sessionDot"
                visible: root.session.hasSession
                implicitWidth: 8
                implicitHeight: 8
                radius: 4
                color: root.session.dotColor
            }
        }

        Divider {}

        // Pomodoro timer
        Rectangle {
            objectName: "pomodoroWidget"
            Layout.fillWidth: true
            implicitHeight: pomodoroRow.implicitHeight + 12
            color: Qt.rgba(root.timer.color.r, root.timer.color.g, root.timer.color.b,
                           root.timer.backgroundOpacity)

            RowLayout {
                id: pomodoroRow
                anchors.fill: parent
                anchors.leftMargin: 14
                anchors.rightMargin: 14
                spacing: 10

                Item {
                    id: ring
                    objectName: "timerRing"
                    implicitWidth: 38
                    implicitHeight: 38
                    property real shownProgress: root.timer.progress
                    Behavior on shownProgress {
                        NumberAnimation { duration: 500; easing.type: Easing.Linear }
                    }
                    Shape {
                        anchors.fill: parent
                        ShapePath {
                            strokeWidth: 4
                            strokeColor: Qt.rgba(root.timer.color.r, root.timer.color.g, root.timer.color.b, 0.2)
                            fillColor: "transparent"
                            PathAngleArc { centerX: 19; centerY: 19; radiusX: 17; radiusY: 17; startAngle: 0; sweepAngle: 360 }
                        }
                        ShapePath {
                            strokeWidth: 4
                            strokeColor: ring.shownProgress > 0 ? root.timer.color : "transparent"
                            fillColor: "transparent"
                            capStyle: ShapePath.RoundCap
                            PathAngleArc {
                                centerX: 19; centerY: 19; radiusX: 17; radiusY: 17
                                startAngle: -90
                                sweepAngle: 360 * Math.min(1, Math.max(0, ring.shownProgress))
                            }
                        }
                    }
                    Emoji {
                        anchors.centerIn: parent
                        text: root.timer.modeIcon
                        font.pixelSize: 15
                    }
                }

                ColumnLayout {
                    spacing: 0
                    Layout.fillWidth: true
                    Label {
                        objectName: "timerTime"
                        Layout.fillWidth: true
                        text: root.timer.displayTime
                        font.pixelSize: 20
                        font.weight: Font.DemiBold
                    }
                    Label {
                        objectName: "timerMode"
                        Layout.fillWidth: true
                        text: root.timer.modeName
                        color: root.timer.color
                        font.pixelSize: 11
                        font.weight: Font.Medium
                    }
                }

                RoundButton {
                    objectName: "timerStopButton"
                    visible: root.timer.showsStop
                    icon.source: Icons.source("stop.fill")
                    icon.color: root.timer.color
                    icon.width: 12
                    icon.height: 12
                    display: AbstractButton.IconOnly
                    implicitWidth: 32
                    implicitHeight: 32
                    background: Rectangle {
                        radius: height / 2
                        color: Qt.rgba(root.timer.color.r, root.timer.color.g, root.timer.color.b,
                                       parent.down ? 0.28 : 0.16)
                    }
                    onClicked: root.controller.stopTimer()
                }

                RoundButton {
                    objectName: "timerMainButton"
                    property string symbol: root.timer.mainSymbol
                    icon.source: Icons.source(symbol)
                    icon.color: "white"
                    icon.width: 14
                    icon.height: 14
                    display: AbstractButton.IconOnly
                    implicitWidth: 32
                    implicitHeight: 32
                    background: Rectangle {
                        radius: height / 2
                        color: root.timer.color
                        opacity: parent.down ? 0.75 : 1
                    }
                    onClicked: root.controller.toggleTimer()
                }
            }
        }

        Divider {}

        // Pending banner
        Rectangle {
            objectName: "pendingBanner"
            visible: root.controller.pendingCount > 0
            Layout.fillWidth: true
            implicitHeight: bannerRow.implicitHeight + 12
            color: Qt.rgba(1, 0.584, 0, 0.12)
            RowLayout {
                id: bannerRow
                anchors.fill: parent
                anchors.leftMargin: 14
                anchors.rightMargin: 14
                spacing: 10
                SymbolIcon {
                    name: "exclamationmark.circle.fill"
                    color: root.orange
                    size: 18
                }
                ColumnLayout {
                    spacing: 1
                    Layout.fillWidth: true
                    Label {
                        objectName: "pendingBannerText"
                        horizontalAlignment: Text.AlignLeft
                        text: root.controller.pendingBannerText
                        font.pixelSize: 12
                        font.weight: Font.DemiBold
                        elide: Text.ElideRight
                        Layout.fillWidth: true
                    }
                    Label {
                        text: root.labels.tapToCategorize
                        color: root.secondaryText
                        font.pixelSize: 11
                    }
                }
                SymbolIcon {
                    name: "chevron.right"
                    color: root.secondaryText
                    size: 12
                }
            }
        }

        Divider {
            visible: root.controller.pendingCount > 0
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

                // Today's breakdown
                ColumnLayout {
                    Layout.fillWidth: true
                    Layout.margins: 14
                    Layout.topMargin: 8
                    Layout.bottomMargin: 8
                    spacing: 6

                    SectionTitle {
                        text: root.labels.breakdownTitle
                    }

                    Repeater {
                        model: root.controller.breakdownBars
                        delegate: RowLayout {
                            objectName: "breakdownBar" + index
                            required property var modelData
                            required property int index
                            Layout.fillWidth: true
                            spacing: 8
                            Emoji {
                                text: modelData.icon
                                font.pixelSize: 14
                                Layout.preferredWidth: 20
                            }
                            Item {
                                Layout.fillWidth: true
                                implicitHeight: 6
                                Rectangle {
                                    anchors.fill: parent
                                    radius: 3
                                    color: Qt.rgba(root.secondaryText.r, root.secondaryText.g,
                                                   root.secondaryText.b, 0.15)
                                }
                                Rectangle {
                                    objectName: "breakdownFill" + index
                                    width: parent.width * modelData.fraction
                                    height: parent.height
                                    radius: 3
                                    color: modelData.color
                                }
                            }
                            Label {
                                text: modelData.duration
                                color: root.secondaryText
                                font.pixelSize: 11
                                horizontalAlignment: Text.AlignRight
                                Layout.preferredWidth: 40
                            }
                        }
                    }

                    Label {
                        objectName: "breakdownEmpty"
                        visible: !root.controller.hasBreakdown
                        text: root.labels.noDataYet
                        color: root.secondaryText
                        font.pixelSize: 12
                    }

                    RowLayout {
                        visible: root.controller.productivity.text !== undefined
                        spacing: 6
                        Layout.topMargin: 2
                        Rectangle {
                            objectName: "productivityDot"
                            implicitWidth: 7
                            implicitHeight: 7
                            radius: 3.5
                            color: root.controller.productivity.color ?? "transparent"
                        }
                        Label {
                            objectName: "productivityText"
                            text: root.controller.productivity.text ?? ""
                            color: root.secondaryText
                            font.pixelSize: 11
                        }
                    }
                }

                Divider {}

                // Recent
                ColumnLayout {
                    Layout.fillWidth: true
                    Layout.margins: 14
                    Layout.topMargin: 8
                    Layout.bottomMargin: 8
                    spacing: 5

                    SectionTitle {
                        text: root.labels.recentTitle
                    }

                    Repeater {
                        model: root.controller.recentRows
                        delegate: RowLayout {
                            objectName: "recentRow" + index
                            required property var modelData
                            required property int index
                            Layout.fillWidth: true
                            spacing: 8
                            Emoji {
                                text: modelData.icon
                                font.pixelSize: 14
                                Layout.preferredWidth: 20
                            }
                            ColumnLayout {
                                spacing: 0
                                Layout.fillWidth: true
                                Label {
                                    objectName: "recentTitle" + index
                                    horizontalAlignment: Text.AlignLeft
                                    text: modelData.title
                                    font.pixelSize: 12
                                    elide: Text.ElideRight
                                    maximumLineCount: 1
                                    Layout.fillWidth: true
                                }
                                Label {
                                    objectName: "recentTime" + index
                                    text: modelData.time
                                    color: root.secondaryText
                                    font.pixelSize: 10
                                }
                            }
                            Label {
                                text: modelData.duration
                                color: root.secondaryText
                                font.pixelSize: 11
                            }
                        }
                    }

                    Label {
                        objectName: "recentEmpty"
                        visible: root.controller.recentRows.length === 0
                        text: root.labels.nothingTracked
                        color: root.secondaryText
                        font.pixelSize: 12
                    }
                }
            }
        }

        Divider {}

        // Footer
        RowLayout {
            Layout.fillWidth: true
            Layout.leftMargin: 8
            Layout.rightMargin: 14
            Layout.topMargin: 4
            Layout.bottomMargin: 4
            spacing: 8
            ToolButton {
                objectName: "openDashboardButton"
                text: root.labels.openDashboard
                icon.source: Icons.source("chart.bar.xaxis")
                icon.color: palette.buttonText
                icon.width: 16
                icon.height: 16
                font.pixelSize: 12
                onClicked: root.controller.openDashboard()
            }
            Item { Layout.fillWidth: true }
            Label {
                objectName: "pendingFooter"
                visible: root.controller.pendingCount > 0
                text: root.controller.pendingFooterText
                color: root.orange
                font.pixelSize: 11
                font.weight: Font.DemiBold
            }
        }
    }
}
