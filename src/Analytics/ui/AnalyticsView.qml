import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Larkspan

// The analytics tab: one scrolling page of cards for the chosen period — the header with the range
// selector (and the day bar for `day`), the five tiles, the daily chart, the productivity pattern, the
// focus sessions, the category and website breakdowns side by side, and the applications. It loads
// when it appears; ← and → step the day and Home goes to today while the range is `day`.
Rectangle {
    id: root

    required property AnalyticsController controller

    // The cards stand out in the control background colour.
    color: palette.window

    Component.onCompleted: controller.load()

    Shortcut {
        sequence: "Left"
        enabled: root.controller.header.dayBar
        onActivated: root.controller.stepDay(-1)
    }
    Shortcut {
        sequence: "Right"
        enabled: root.controller.header.dayBar && root.controller.header.canStepForward
        onActivated: root.controller.stepDay(1)
    }
    Shortcut {
        sequence: "Home"
        enabled: root.controller.header.dayBar
        onActivated: root.controller.goToToday()
    }

    ScrollView {
        id: scroller
        objectName: "scroller"
        anchors.fill: parent
        contentWidth: availableWidth
        clip: true

        ColumnLayout {
            id: page
            width: scroller.availableWidth
            spacing: 16

            // Header: title and range selector, then the day bar.
            ColumnLayout {
                Layout.fillWidth: true
                Layout.leftMargin: 24
                Layout.rightMargin: 24
                Layout.topMargin: 20
                spacing: Theme.spacingLarge

                RowLayout {
                    Layout.fillWidth: true
                    Text {
                        objectName: "analyticsTitle"
                        Layout.fillWidth: true
                        text: root.controller.labels.title
                        color: Theme.primaryText
                        font.pixelSize: Theme.fontLargeTitle
                        font.weight: Font.Bold
                        Accessible.role: Accessible.Heading
                        Accessible.name: text
                    }
                    AnalyticsRangeSelector {
                        objectName: "rangeSelector"
                        controller: root.controller
                    }
                }
                AnalyticsDayBar {
                    objectName: "dayBar"
                    Layout.alignment: Qt.AlignHCenter
                    visible: root.controller.header.dayBar
                    controller: root.controller
                }
            }

            ColumnLayout {
                Layout.fillWidth: true
                Layout.leftMargin: 24
                Layout.rightMargin: 24
                Layout.bottomMargin: 24
                spacing: 16

                RowLayout {
                    objectName: "statsRow"
                    Layout.fillWidth: true
                    spacing: 12
                    Repeater {
                        model: root.controller.tiles
                        AnalyticsStatTile {}
                    }
                }

                AnalyticsCard {
                    objectName: "dailyChart"
                    visible: root.controller.sections.dailyChart
                    title: root.controller.labels.dailyTitle

                    AnalyticsEmptyText {
                        objectName: "dailyEmpty"
                        visible: root.controller.sections.dailyEmpty
                        text: root.controller.labels.noDataForPeriod
                    }
                    AnalyticsDailyChart {
                        visible: !root.controller.sections.dailyEmpty
                        controller: root.controller
                    }
                }

                AnalyticsCard {
                    objectName: "hourlyHeatmap"
                    title: root.controller.labels.patternTitle
                    subtitle: root.controller.sections.patternSubtitle

                    AnalyticsEmptyText {
                        objectName: "patternEmpty"
                        visible: root.controller.sections.patternEmpty
                        text: root.controller.labels.noProductiveActivity
                    }
                    AnalyticsHourlyChart {
                        visible: !root.controller.sections.patternEmpty
                        controller: root.controller
                    }
                }

                AnalyticsCard {
                    objectName: "focusSessionsSection"
                    title: root.controller.labels.sessionsTitle
                    subtitle: root.controller.labels.sessionsSubtitle
                    trailing: [
                        Label {
                            objectName: "sessionCount"
                            visible: !root.controller.sections.sessionsEmpty
                            text: root.controller.sections.sessionCount
                            color: Theme.purple
                            font.pixelSize: Theme.fontSmall
                            font.weight: Font.DemiBold
                        },
                        Label {
                            objectName: "longestSession"
                            visible: !root.controller.sections.sessionsEmpty
                            text: root.controller.sections.longest
                            color: Theme.secondaryText
                            font.pixelSize: Theme.fontSmall
                        }
                    ]

                    AnalyticsEmptyText {
                        objectName: "sessionsEmpty"
                        visible: root.controller.sections.sessionsEmpty
                        text: root.controller.labels.noSessions
                    }
                    AnalyticsRows {
                        id: sessionRows
                        Repeater {
                            model: root.controller.sessions

                            ColumnLayout {
                                id: session
                                required property int index
                                required property int place
                                required property string startText
                                required property string endText
                                required property string duration
                                required property bool last
                                required property string spoken

                                objectName: "session" + index
                                width: sessionRows.width
                                spacing: Theme.spacing
                                Accessible.role: Accessible.StaticText
                                Accessible.name: spoken

                                RowLayout {
                                    Layout.fillWidth: true
                                    spacing: Theme.spacingLarge
                                    Label {
                                        text: session.place
                                        color: Theme.secondaryText
                                        font.pixelSize: Theme.fontSmall
                                        horizontalAlignment: Text.AlignRight
                                        Layout.preferredWidth: 16
                                    }
                                    Rectangle {
                                        implicitWidth: 8
                                        implicitHeight: 8
                                        radius: 4
                                        color: Theme.tint(Theme.purple, 0.6)
                                    }
                                    Label {
                                        Layout.fillWidth: true
                                        text: session.startText + "  →  " + session.endText
                                        color: Theme.primaryText
                                        font.pixelSize: Theme.fontBody
                                        elide: Text.ElideRight
                                    }
                                    Label {
                                        text: session.duration
                                        color: Theme.purple
                                        font.pixelSize: Theme.fontBody
                                        font.weight: Font.DemiBold
                                    }
                                }
                                Divider {
                                    visible: !session.last
                                }
                            }
                        }
                    }
                    Label {
                        objectName: "moreSessions"
                        visible: root.controller.sections.moreSessions !== ""
                        text: root.controller.sections.moreSessions
                        color: Theme.secondaryText
                        font.pixelSize: Theme.fontSmall
                    }
                }

                RowLayout {
                    Layout.fillWidth: true
                    spacing: 16

                    AnalyticsCard {
                        objectName: "categoryBreakdown"
                        Layout.alignment: Qt.AlignTop
                        Layout.preferredWidth: 1
                        title: root.controller.labels.categoryTitle

                        AnalyticsEmptyText {
                            visible: root.controller.sections.categoriesEmpty
                            text: root.controller.labels.noData
                        }
                        AnalyticsRows {
                            id: categoryRows
                            Repeater {
                                model: root.controller.categories
                                AnalyticsShareRow {
                                    width: categoryRows.width
                                }
                            }
                        }
                    }
                    AnalyticsCard {
                        objectName: "topWebsites"
                        Layout.alignment: Qt.AlignTop
                        Layout.preferredWidth: 1
                        visible: root.controller.sections.websites
                        title: root.controller.labels.websitesTitle

                        AnalyticsRows {
                            id: websiteRows
                            Repeater {
                                model: root.controller.websites
                                AnalyticsShareRow {
                                    width: websiteRows.width
                                    symbol: "globe"
                                    fill: Theme.tint(palette.highlight, 0.65)
                                }
                            }
                        }
                    }
                }

                AnalyticsCard {
                    objectName: "appBreakdown"
                    title: root.controller.labels.applicationsTitle

                    AnalyticsEmptyText {
                        visible: root.controller.sections.applicationsEmpty
                        text: root.controller.labels.noDataForPeriod
                    }
                    AnalyticsRows {
                        id: applicationRows
                        Repeater {
                            model: root.controller.applications
                            AnalyticsShareRow {
                                width: applicationRows.width
                                nameWidth: 140
                                barHeight: 8
                                fill: Theme.tint(palette.highlight, 0.7)
                            }
                        }
                    }
                }
            }
        }
    }
}
