#include "Analytics/ui/AnalyticsController.h"

#include <QDate>
#include <QLocale>

#include <algorithm>

#include "Analytics/AnalyticsLoad.h"
#include "Classification/Palette.h"
#include "ui/QtConversion.h"

namespace larkspan {

namespace {

using namespace analytics;

Color toneColor(TileTone tone) {
    switch (tone) {
        case TileTone::blue:
            return Palette::blue;
        case TileTone::green:
            return Palette::green;
        case TileTone::red:
            return Palette::red;
        case TileTone::purple:
            return Palette::purple;
        case TileTone::orange:
            return Palette::orange;
    }
    return Palette::grey;
}

// The date of a daily bar's year-less "MM/dd" key: the latest such date not after today, as every
// range with a daily chart ends now.
QDate dateOfDayKey(const QString& key, const QDate& today) {
    const QDate thisYear(today.year(), key.left(2).toInt(), key.mid(3).toInt());
    return thisYear > today ? thisYear.addYears(-1) : thisYear;
}

AnalyticsShareItem shareItem(QString key, const std::string& icon, const std::string& name, QColor color,
                             std::int64_t seconds, double fraction, const std::string& spoken) {
    const QString shownName = toQString(name);
    return {std::move(key),
            toQString(icon),
            shownName,
            color,
            drawnFraction(fraction),
            toQString(formatTime(seconds)),
            shownName + QStringLiteral(": ") + toQString(spoken)};
}

}  // namespace

AnalyticsController::AnalyticsController(Database& database, const Clock& clock, QObject* parent)
    : QObject(parent),
      database_(database),
      clock_(clock),
      selectedDay_(clock.now()),
      tiles_(this),
      days_(this),
      hours_(this),
      sessions_(this),
      categories_(this),
      websites_(this),
      applications_(this) {
    updateHeader();
    assign({analyticsPage({}, {}), analyticsSections({}, range_)});
}

AnalyticsLabels AnalyticsController::labels() const {
    namespace text = analytics_text;
    QStringList ranges;
    for (TimeRange range : kTimeRanges)
        ranges.append(toQString(rawValue(range)));
    return {text::title,
            text::range,
            ranges,
            text::today,
            text::previousDay,
            text::nextDay,
            text::dailyTitle,
            text::noDataForPeriod,
            text::legendProductive,
            text::legendOther,
            text::patternTitle,
            text::noProductiveActivity,
            text::sessionsTitle,
            toQString(text::sessionsSubtitle),
            toQString(text::noSessions),
            text::categoryTitle,
            text::noData,
            text::websitesTitle,
            text::applicationsTitle};
}

void AnalyticsController::load() {
    Database* database = &database_;
    const TimeRange range = range_;
    const Date selectedDay = selectedDay_;
    const Date now = clock_.now();
    loader_.start(
        [database, range, selectedDay, now] {
            const AnalyticsPage page = analyticsPage(analytics::load(*database, range, selectedDay, now),
                                                     database->fetchCategories());
            return Loaded{page, analyticsSections(page, range)};
        },
        [this](Loaded loaded) { assign(std::move(loaded)); });
}

void AnalyticsController::chooseRange(int index) {
    if (index < 0 || index >= static_cast<int>(kTimeRanges.size()))
        return;
    range_ = kTimeRanges[static_cast<std::size_t>(index)];
    updateHeader();
    load();
}

void AnalyticsController::stepDay(int days) {
    setSelectedDay(analytics::stepDay(selectedDay_, days, clock_.now()));
}

void AnalyticsController::goToToday() {
    setSelectedDay(clock_.now());
}

void AnalyticsController::setSelectedDay(Date day) {
    selectedDay_ = day;
    updateHeader();
    if (range_ == TimeRange::day)
        load();
}

void AnalyticsController::updateHeader() {
    AnalyticsHeader header;
    header.rangeIndex = static_cast<int>(range_);
    header.dayBar = range_ == TimeRange::day;
    header.dayText = QLocale().toString(localDateTime(selectedDay_).date(), QLocale::LongFormat);
    header.canStepForward = canStepForward(selectedDay_, clock_.now());
    if (header == header_)
        return;
    header_ = std::move(header);
    emit headerChanged();
}

void AnalyticsController::assign(Loaded loaded) {
    const AnalyticsPage& page = loaded.page;
    const AnalyticsSections& shown = loaded.sections;
    sections_ = {shown.dailyChart,
                 shown.dailyEmpty,
                 toQString(shown.patternSubtitle),
                 shown.patternEmpty,
                 shown.sessionsEmpty,
                 toQString(shown.sessionCount),
                 toQString(shown.longest),
                 toQString(shown.moreSessions),
                 shown.categoriesEmpty,
                 shown.websites,
                 shown.applicationsEmpty};

    std::vector<AnalyticsTileItem> tiles;
    for (const StatTile& tile : statTiles(page.summary))
        tiles.push_back({toQString(tile.label), toQString(tile.label), toQString(tile.value),
                         toQString(tile.symbol), toQColor(toneColor(tile.tone)), toQString(tile.spoken)});
    tiles_.setRows(std::move(tiles));

    const QLocale locale;
    const QDate today = localDateTime(clock_.now()).date();
    std::vector<AnalyticsDayItem> days;
    for (const DailyBar& bar : page.dailyBars) {
        const QString key = toQString(bar.key);
        const QString date = locale.toString(dateOfDayKey(key, today), QStringLiteral("dddd d MMMM"));
        days.push_back({key, toQString(bar.label), std::max(bar.height, 0.0),
                        std::clamp(bar.productiveHeight, 0.0, std::max(bar.height, 0.0)),
                        date + QStringLiteral(": ") + toQString(dailyBarFigure(bar))});
    }
    days_.setRows(std::move(days));

    std::vector<AnalyticsHourItem> hours;
    for (const HourlyColumn& column : page.hourlyColumns)
        hours.push_back({column.hour, toQString(column.label), std::max(column.height, 0.0), column.opacity,
                         toQString(hourlyColumnFigure(column))});
    hours_.setRows(std::move(hours));

    const QString timeFormat = shortTimeFormat(locale);
    const std::size_t shownSessions = std::min(page.focusSessions.size(), kShownFocusSessions);
    std::vector<AnalyticsSessionItem> sessions;
    for (std::size_t i = 0; i < shownSessions; ++i) {
        const FocusSession& session = page.focusSessions[i];
        const int place = static_cast<int>(i) + 1;
        const QString start = locale.toString(localDateTime(session.startTime).time(), timeFormat);
        const QString end = locale.toString(localDateTime(session.endTime).time(), timeFormat);
        const QString duration = toQString(formatTime(session.duration));
        sessions.push_back({place, place, start, end, duration, i + 1 == shownSessions,
                            QStringLiteral("Session %1: %2 to %3, %4").arg(place).arg(start, end, duration)});
    }
    sessions_.setRows(std::move(sessions));

    std::vector<AnalyticsShareItem> categories;
    for (const CategoryFigure& figure : page.categories)
        categories.push_back(shareItem(QString::number(figure.categoryID), figure.icon, figure.name,
                                       toQColor(figure.color), figure.seconds, figure.fraction,
                                       shareFigure(figure.seconds, figure.fraction)));
    categories_.setRows(std::move(categories));

    std::vector<AnalyticsShareItem> websites;
    for (const WebsiteFigure& figure : page.websites)
        websites.push_back(shareItem(toQString(figure.domain), {}, figure.domain, {}, figure.seconds,
                                     figure.fraction, formatTime(figure.seconds)));
    websites_.setRows(std::move(websites));

    std::vector<AnalyticsShareItem> applications;
    for (const AppFigure& figure : page.applications)
        applications.push_back(shareItem(toQString(figure.app), figure.icon, figure.app, {}, figure.seconds,
                                         figure.fraction, formatTime(figure.seconds)));
    applications_.setRows(std::move(applications));

    emit pageChanged();
}

}  // namespace larkspan
