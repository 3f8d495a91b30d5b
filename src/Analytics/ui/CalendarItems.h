// The values the calendar tab shows, as QML value types: the month header, and the rows of its day
// grid, summary cards and category bar. The colours and texts come from Analytics/Calendar*.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QString>

namespace larkspan {

// The month on show and where its arrows lead.
struct CalendarHeader {
    Q_GADGET
    QML_VALUE_TYPE(calendarHeader)
    Q_PROPERTY(QString title MEMBER title)  // "March 2026", the month in the user's language
    Q_PROPERTY(bool canGoForward MEMBER canGoForward)
    Q_PROPERTY(bool hasCategoryBar MEMBER hasCategoryBar)  // some time tracked this month
public:
    QString title;
    bool canGoForward = false;
    bool hasCategoryBar = false;
    bool operator==(const CalendarHeader&) const = default;
};

// One cell of the grid, keyed by its place, so stepping through months updates cells in place.
struct CalendarDayItem {
    Q_GADGET
    Q_PROPERTY(bool isEmpty MEMBER isEmpty)  // a blank before the 1st
    Q_PROPERTY(int day MEMBER day)
    Q_PROPERTY(QColor circleColor MEMBER circleColor)  // transparent up to ten tracked minutes
    Q_PROPERTY(QString hoursText MEMBER hoursText)
    Q_PROPERTY(QString pomodoroText MEMBER pomodoroText)
    Q_PROPERTY(bool isSelected MEMBER isSelected)
    Q_PROPERTY(bool isToday MEMBER isToday)
    Q_PROPERTY(bool isFuture MEMBER isFuture)
    Q_PROPERTY(QString accessibleName MEMBER accessibleName)
public:
    int key = 0;
    bool isEmpty = true;
    int day = 0;
    QColor circleColor;
    QString hoursText, pomodoroText;
    bool isSelected = false, isToday = false, isFuture = false;
    QString accessibleName;
};

// A card of the month summary, keyed by its place.
struct CalendarStatItem {
    Q_GADGET
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(QString value MEMBER value)
    Q_PROPERTY(QColor tone MEMBER tone)
public:
    int key = 0;
    QString label, value;
    QColor tone;
};

// A segment of the category bar or an entry of its legend, keyed by category.
struct CalendarShareItem {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QColor tone MEMBER tone)
    Q_PROPERTY(double span MEMBER span)  // pixels; segments only
    Q_PROPERTY(QString duration MEMBER duration)
public:
    qint64 key = 0;
    QString name;
    QColor tone;
    double span = 0;
    QString duration;
};

}  // namespace larkspan
