// The values the day screen shows, as QML value types and list rows.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QString>
#include <QVariantList>

namespace larkspan {

// The row above the filter bar: the date, the day's summary and whether the next day may be shown.
struct TimelineHeader {
    Q_GADGET
    QML_VALUE_TYPE(timelineHeader)
    Q_PROPERTY(QString dateText MEMBER dateText)
    Q_PROPERTY(QString summaryText MEMBER summaryText)
    Q_PROPERTY(bool canStepForward MEMBER canStepForward)
    Q_PROPERTY(bool isToday MEMBER isToday)
public:
    QString dateText, summaryText;
    bool canStepForward = false;
    bool isToday = false;
    bool operator==(const TimelineHeader&) const = default;
};

// A choice of the duration filter, keyed by its seconds.
struct FilterOptionItem {
    Q_GADGET
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(int seconds MEMBER seconds)
    Q_PROPERTY(bool chosen MEMBER chosen)
public:
    int key = 0;
    QString label;
    int seconds = 0;
    bool chosen = false;
};

// One row of the list: a stitched block, keyed by the id of its first visit.
struct ActivityRowItem {
    Q_GADGET
    Q_PROPERTY(double blockID MEMBER blockID)
    Q_PROPERTY(QString emoji MEMBER icon)
    Q_PROPERTY(QColor color MEMBER color)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(bool isManual MEMBER isManual)
    Q_PROPERTY(bool pending MEMBER pending)
    Q_PROPERTY(int visits MEMBER visits)  // 1 for a block of one visit
    Q_PROPERTY(QString timeText MEMBER timeText)
    Q_PROPERTY(QString subtitle MEMBER subtitle)
    Q_PROPERTY(QString duration MEMBER duration)
    Q_PROPERTY(bool selected MEMBER selected)
public:
    qint64 key = 0;
    double blockID = 0;
    QString icon;
    QColor color;
    QString title;
    bool isManual = false;
    bool pending = false;
    int visits = 1;
    QString timeText, subtitle, duration;
    bool selected = false;
};

// One box or away bar of the canvas, in canvas points, keyed by its chapter's id.
struct ChapterBoxItem {
    Q_GADGET
    Q_PROPERTY(double chapterID MEMBER chapterID)
    Q_PROPERTY(double frameX MEMBER x)
    Q_PROPERTY(double frameY MEMBER y)
    Q_PROPERTY(double w MEMBER w)
    Q_PROPERTY(double h MEMBER h)
    Q_PROPERTY(bool isIdle MEMBER isIdle)
    Q_PROPERTY(QString icon MEMBER icon)
    Q_PROPERTY(QColor color MEMBER color)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString line MEMBER line)
    Q_PROPERTY(QString duration MEMBER duration)
    Q_PROPERTY(bool selected MEMBER selected)
    // The breakdown strip: colours and heights of up to six segments.
    Q_PROPERTY(QVariantList stripColors MEMBER stripColors)
    Q_PROPERTY(QVariantList stripHeights MEMBER stripHeights)
public:
    qint64 key = 0;
    double chapterID = 0;
    double x = 0, y = 0, w = 0, h = 0;
    bool isIdle = false;
    QString icon;
    QColor color;
    QString title, line, duration;
    bool selected = false;
    QVariantList stripColors, stripHeights;
};

// A label and value line of a detail panel, keyed by its label.
struct DetailRowItem {
    Q_GADGET
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(QString value MEMBER value)
public:
    QString key, label, value;
};

// One activity listed in a panel: a visit of a block or an activity of a chapter.
struct PanelActivityItem {
    Q_GADGET
    Q_PROPERTY(double activityID MEMBER activityID)
    Q_PROPERTY(QString icon MEMBER icon)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString time MEMBER time)
    Q_PROPERTY(QString duration MEMBER duration)
public:
    qint64 key = 0;
    double activityID = 0;
    QString icon, title, time, duration;
};

// A share of the chapter's category mix, keyed by its place.
struct MixShareItem {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QColor color MEMBER color)
    Q_PROPERTY(QString percent MEMBER percent)
public:
    int key = 0;
    QString name;
    QColor color;
    QString percent;
};

// A category offered by a grid, keyed by its id.
struct CategoryCellItem {
    Q_GADGET
    Q_PROPERTY(double categoryID MEMBER categoryID)
    Q_PROPERTY(QString emoji MEMBER icon)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QColor color MEMBER color)
public:
    qint64 key = 0;
    double categoryID = 0;
    QString icon, name;
    QColor color;
};

// The panel that shows: a block in list mode, a chapter in canvas mode. Its lists are models of the
// controller.
struct TimelinePanel {
    Q_GADGET
    QML_VALUE_TYPE(timelinePanel)
    Q_PROPERTY(bool shown MEMBER shown)
    Q_PROPERTY(bool isChapter MEMBER isChapter)
    Q_PROPERTY(bool isManual MEMBER isManual)
    Q_PROPERTY(QString icon MEMBER icon)
    Q_PROPERTY(QColor color MEMBER color)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString caption MEMBER caption)
    Q_PROPERTY(QString url MEMBER url)
    Q_PROPERTY(QString notes MEMBER notes)
    Q_PROPERTY(double currentCategoryID MEMBER currentCategoryID)  // -1 for none
    Q_PROPERTY(QString gridTitle MEMBER gridTitle)
    Q_PROPERTY(QString listTitle MEMBER listTitle)  // empty: no list
public:
    bool shown = false;
    bool isChapter = false;
    bool isManual = false;
    QString icon;
    QColor color;
    QString title, caption, url, notes;
    double currentCategoryID = -1;
    QString gridTitle, listTitle;
    bool operator==(const TimelinePanel&) const = default;
};

// The open sheet: the edit sheet over a stored activity, or the manual entry sheet.
struct TimelineSheet {
    Q_GADGET
    QML_VALUE_TYPE(timelineSheet)
    Q_PROPERTY(bool open MEMBER open)
    Q_PROPERTY(bool manual MEMBER manual)
    Q_PROPERTY(bool recordIsManual MEMBER recordIsManual)
    Q_PROPERTY(QString icon MEMBER icon)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString appName MEMBER appName)  // empty: not shown
    Q_PROPERTY(int startHour MEMBER startHour)
    Q_PROPERTY(int startMinute MEMBER startMinute)  // rounded down to a step of five
    Q_PROPERTY(QString startText MEMBER startText)  // "HH:mm"
    Q_PROPERTY(int endHour MEMBER endHour)
    Q_PROPERTY(int endMinute MEMBER endMinute)
    Q_PROPERTY(QString endText MEMBER endText)
    Q_PROPERTY(QString durationText MEMBER durationText)
    Q_PROPERTY(bool canSave MEMBER canSave)
    Q_PROPERTY(double categoryID MEMBER categoryID)
    Q_PROPERTY(QString entryTitle MEMBER entryTitle)
    Q_PROPERTY(QString notes MEMBER notes)
public:
    bool open = false;
    bool manual = false;
    bool recordIsManual = false;
    QString icon, title, appName;
    int startHour = 0, startMinute = 0;
    QString startText;
    int endHour = 0, endMinute = 0;
    QString endText, durationText;
    bool canSave = false;
    double categoryID = 0;
    QString entryTitle, notes;
    bool operator==(const TimelineSheet&) const = default;
};

}  // namespace larkspan
