// The values the analytics screen shows, as QML value types and list rows.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QString>
#include <QStringList>

namespace larkspan {

// The fixed words of the page.
struct AnalyticsLabels {
    Q_GADGET
    QML_VALUE_TYPE(analyticsLabels)
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QString range MEMBER range CONSTANT)
    Q_PROPERTY(QStringList ranges MEMBER ranges CONSTANT)  // the selector's segments, in order
    Q_PROPERTY(QString today MEMBER today CONSTANT)
    Q_PROPERTY(QString previousDay MEMBER previousDay CONSTANT)
    Q_PROPERTY(QString nextDay MEMBER nextDay CONSTANT)
    Q_PROPERTY(QString dailyTitle MEMBER dailyTitle CONSTANT)
    Q_PROPERTY(QString noDataForPeriod MEMBER noDataForPeriod CONSTANT)
    Q_PROPERTY(QString legendProductive MEMBER legendProductive CONSTANT)
    Q_PROPERTY(QString legendOther MEMBER legendOther CONSTANT)
    Q_PROPERTY(QString patternTitle MEMBER patternTitle CONSTANT)
    Q_PROPERTY(QString noProductiveActivity MEMBER noProductiveActivity CONSTANT)
    Q_PROPERTY(QString sessionsTitle MEMBER sessionsTitle CONSTANT)
    Q_PROPERTY(QString sessionsSubtitle MEMBER sessionsSubtitle CONSTANT)
    Q_PROPERTY(QString noSessions MEMBER noSessions CONSTANT)
    Q_PROPERTY(QString categoryTitle MEMBER categoryTitle CONSTANT)
    Q_PROPERTY(QString noData MEMBER noData CONSTANT)
    Q_PROPERTY(QString websitesTitle MEMBER websitesTitle CONSTANT)
    Q_PROPERTY(QString applicationsTitle MEMBER applicationsTitle CONSTANT)
public:
    QString title, range;
    QStringList ranges;
    QString today, previousDay, nextDay, dailyTitle, noDataForPeriod, legendProductive, legendOther,
        patternTitle, noProductiveActivity, sessionsTitle, sessionsSubtitle, noSessions, categoryTitle,
        noData, websitesTitle, applicationsTitle;
};

// The range selector and the day bar.
struct AnalyticsHeader {
    Q_GADGET
    QML_VALUE_TYPE(analyticsHeader)
    Q_PROPERTY(int rangeIndex MEMBER rangeIndex)
    Q_PROPERTY(bool dayBar MEMBER dayBar)
    Q_PROPERTY(QString dayText MEMBER dayText)  // the selected day, localized, without a time
    Q_PROPERTY(bool canStepForward MEMBER canStepForward)
public:
    int rangeIndex = 0;
    bool dayBar = false;
    QString dayText;
    bool canStepForward = false;
    bool operator==(const AnalyticsHeader&) const = default;
};

// Which sections show and their counted lines, from the last load.
struct AnalyticsSectionsItem {
    Q_GADGET
    QML_VALUE_TYPE(analyticsSections)
    Q_PROPERTY(bool dailyChart MEMBER dailyChart)
    Q_PROPERTY(bool dailyEmpty MEMBER dailyEmpty)
    Q_PROPERTY(QString patternSubtitle MEMBER patternSubtitle)
    Q_PROPERTY(bool patternEmpty MEMBER patternEmpty)
    Q_PROPERTY(bool sessionsEmpty MEMBER sessionsEmpty)
    Q_PROPERTY(QString sessionCount MEMBER sessionCount)
    Q_PROPERTY(QString longest MEMBER longest)
    Q_PROPERTY(QString moreSessions MEMBER moreSessions)
    Q_PROPERTY(bool categoriesEmpty MEMBER categoriesEmpty)
    Q_PROPERTY(bool websites MEMBER websites)
    Q_PROPERTY(bool applicationsEmpty MEMBER applicationsEmpty)
public:
    bool dailyChart = false, dailyEmpty = true;
    QString patternSubtitle;
    bool patternEmpty = true, sessionsEmpty = true;
    QString sessionCount, longest, moreSessions;
    bool categoriesEmpty = true, websites = false, applicationsEmpty = true;
};

// One of the five tiles, keyed by its label.
struct AnalyticsTileItem {
    Q_GADGET
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(QString value MEMBER value)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QColor tone MEMBER tone)
    Q_PROPERTY(QString spoken MEMBER spoken)
public:
    QString key, label, value, symbol;
    QColor tone;
    QString spoken;
};

// One bar of the daily chart, keyed by its "MM/dd" day; heights in pixels.
struct AnalyticsDayItem {
    Q_GADGET
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(double barHeight MEMBER barHeight)
    Q_PROPERTY(double productiveHeight MEMBER productiveHeight)
    Q_PROPERTY(QString spoken MEMBER spoken)
public:
    QString key, label;
    double barHeight = 0, productiveHeight = 0;
    QString spoken;
};

// One column of the productivity pattern, keyed by its hour; height in pixels.
struct AnalyticsHourItem {
    Q_GADGET
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(double barHeight MEMBER barHeight)
    Q_PROPERTY(double barOpacity MEMBER barOpacity)
    Q_PROPERTY(QString spoken MEMBER spoken)
public:
    int key = 0;
    QString label;
    double barHeight = 0, barOpacity = 0;
    QString spoken;
};

// One listed focus session, keyed by its place from 1.
struct AnalyticsSessionItem {
    Q_GADGET
    Q_PROPERTY(int place MEMBER place)
    Q_PROPERTY(QString startText MEMBER startText)
    Q_PROPERTY(QString endText MEMBER endText)
    Q_PROPERTY(QString duration MEMBER duration)
    Q_PROPERTY(bool last MEMBER last)  // no divider after it
    Q_PROPERTY(QString spoken MEMBER spoken)
public:
    int key = 0, place = 0;
    QString startText, endText, duration;
    bool last = false;
    QString spoken;
};

// One row of a breakdown (category, website or application), keyed by what it counts.
struct AnalyticsShareItem {
    Q_GADGET
    Q_PROPERTY(QString icon MEMBER icon)  // an emoji; empty for a website, which shows the globe
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QColor color MEMBER color)
    Q_PROPERTY(double fraction MEMBER fraction)  // of the bar, 0 to 1
    Q_PROPERTY(QString duration MEMBER duration)
    Q_PROPERTY(QString spoken MEMBER spoken)
public:
    QString key, icon, name;
    QColor color;
    double fraction = 0;
    QString duration, spoken;
};

}  // namespace larkspan
