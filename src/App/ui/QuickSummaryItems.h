// The values the quick summary popover shows, as QML value types: one per part of the view, each
// recomputed whole when what it depends on changes.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QString>

namespace larkspan {

// The fixed labels.
struct SummaryLabels {
    Q_GADGET
    QML_VALUE_TYPE(summaryLabels)
    Q_PROPERTY(QString today MEMBER today CONSTANT)
    Q_PROPERTY(QString tracked MEMBER tracked CONSTANT)
    Q_PROPERTY(QString breakdownTitle MEMBER breakdownTitle CONSTANT)
    Q_PROPERTY(QString noDataYet MEMBER noDataYet CONSTANT)
    Q_PROPERTY(QString recentTitle MEMBER recentTitle CONSTANT)
    Q_PROPERTY(QString nothingTracked MEMBER nothingTracked CONSTANT)
    Q_PROPERTY(QString tapToCategorize MEMBER tapToCategorize CONSTANT)
    Q_PROPERTY(QString openDashboard MEMBER openDashboard CONSTANT)
public:
    QString today, tracked, breakdownTitle, noDataYet, recentTitle, nothingTracked, tapToCategorize,
        openDashboard;
};

// What the last load of the day gives the header and the breakdown's last line.
struct SummaryDay {
    Q_GADGET
    QML_VALUE_TYPE(summaryDay)
    Q_PROPERTY(QString dateText MEMBER dateText)
    Q_PROPERTY(QString totalText MEMBER totalText)  // empty before the first load
    Q_PROPERTY(bool hasBreakdown MEMBER hasBreakdown)
    Q_PROPERTY(QString productivityText MEMBER productivityText)  // empty when there is no line
    Q_PROPERTY(QColor productivityColor MEMBER productivityColor)
public:
    QString dateText, totalText;
    bool hasBreakdown = false;
    QString productivityText;
    QColor productivityColor;
    bool operator==(const SummaryDay&) const = default;
};

// The current session's row.
struct SummarySession {
    Q_GADGET
    QML_VALUE_TYPE(summarySession)
    Q_PROPERTY(QString icon MEMBER icon)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString subtitle MEMBER subtitle)
    Q_PROPERTY(QColor dotColor MEMBER dotColor)
    Q_PROPERTY(bool hasSession MEMBER hasSession)
public:
    QString icon, title, subtitle;
    QColor dotColor;
    bool hasSession = false;
    bool operator==(const SummarySession&) const = default;
};

// The activities waiting for a category: the banner and the footer.
struct SummaryPending {
    Q_GADGET
    QML_VALUE_TYPE(summaryPending)
    Q_PROPERTY(int count MEMBER count)
    Q_PROPERTY(QString bannerText MEMBER bannerText)
    Q_PROPERTY(QString footerText MEMBER footerText)
public:
    int count = 0;
    QString bannerText, footerText;
    bool operator==(const SummaryPending&) const = default;
};

// The Pomodoro widget.
struct SummaryTimer {
    Q_GADGET
    QML_VALUE_TYPE(summaryTimer)
    Q_PROPERTY(QString modeIcon MEMBER modeIcon)
    Q_PROPERTY(QString displayTime MEMBER displayTime)
    Q_PROPERTY(QString modeName MEMBER modeName)
    Q_PROPERTY(QColor color MEMBER color)
    Q_PROPERTY(double progress MEMBER progress)  // 0 to 1
    Q_PROPERTY(bool showsStop MEMBER showsStop)
    Q_PROPERTY(QString mainSymbol MEMBER mainSymbol)
    Q_PROPERTY(double backgroundOpacity MEMBER backgroundOpacity)
public:
    QString modeIcon, displayTime, modeName;
    QColor color;
    double progress = 0;
    bool showsStop = false;
    QString mainSymbol;
    double backgroundOpacity = 0;
    bool operator==(const SummaryTimer&) const = default;
};

// One bar of today's breakdown, keyed by its category.
struct BreakdownBarItem {
    Q_GADGET
    Q_PROPERTY(QString icon MEMBER icon)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QColor color MEMBER color)
    Q_PROPERTY(double fraction MEMBER fraction)  // of the day's total, 0 to 1
    Q_PROPERTY(QString duration MEMBER duration)
public:
    qint64 key = 0;
    QString icon, name;
    QColor color;
    double fraction = 0;
    QString duration;
};

// One row of the recent list, keyed by its activity.
struct RecentRowItem {
    Q_GADGET
    Q_PROPERTY(QString icon MEMBER icon)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString time MEMBER time)
    Q_PROPERTY(QString duration MEMBER duration)
public:
    qint64 key = 0;
    QString icon, title, time, duration;
};

}  // namespace larkspan
