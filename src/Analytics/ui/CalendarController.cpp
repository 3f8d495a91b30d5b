#include "Analytics/ui/CalendarController.h"

#include <QDate>
#include <QLocale>

#include "Analytics/AnalyticsCalculations.h"
#include "Analytics/CalendarSummary.h"
#include "Platform/LocalDay.h"
#include "ui/QtConversion.h"

namespace larkspan {

using namespace analytics;

namespace {

QColor tintColor(const std::optional<Tint>& tint) {
    return tint ? toQColor(tint->color, tint->opacity) : QColor(Qt::transparent);
}

std::vector<CalendarShareItem> shareItems(const std::vector<CategoryShare>& shares) {
    std::vector<CalendarShareItem> items;
    for (const CategoryShare& share : shares)
        items.push_back({share.categoryID, toQString(share.name), toQColor(share.color), share.width,
                         toQString(formatTime(share.seconds))});
    return items;
}

}  // namespace

CalendarController::CalendarController(Database& database, DashboardController& dashboard, const Clock& clock,
                                       QObject* parent)
    : QObject(parent),
      database_(database),
      dashboard_(dashboard),
      clock_(clock),
      month_(monthOf(clock.now())) {
    connect(&dashboard_, &DashboardController::selectionChanged, this, &CalendarController::recomputeCells);
    connect(&dashboard_, &DashboardController::sidebarChanged, this, &CalendarController::recomputeShares);
    recomputeCells();
    recomputeSummary();
}

QStringList CalendarController::weekdays() const {
    QStringList names;
    for (const char* name : kWeekdays)
        names.append(toQString(name));
    return names;
}

void CalendarController::setBarWidth(double width) {
    if (width == barWidth_)
        return;
    barWidth_ = width;
    emit barWidthChanged();
    recomputeShares();
}

void CalendarController::showPresentMonth() {
    show(monthOf(clock_.now()));
}

void CalendarController::previousMonth() {
    show(addMonths(month_, -1));
}

void CalendarController::nextMonth() {
    if (!isFutureMonth(month_, clock_.now()))
        show(addMonths(month_, 1));
}

void CalendarController::pickDay(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= cells_.size())
        return;
    const auto& cell = cells_[static_cast<std::size_t>(index)];
    if (cell && cell->date <= clock_.now())
        dashboard_.dayTapped(cell->date);
}

void CalendarController::show(YearMonth month) {
    month_ = month;
    loaded_ = {};
    recomputeCells();
    recomputeSummary();
    Database* database = &database_;
    load_.start(
        [database, month] {
            Loaded loaded{month, database->monthSummaries(month.year, month.month), {}};
            if (const auto first = localMidnight(month.year, month.month, 1))
                if (const auto last =
                        localMidnight(month.year, month.month, daysInMonth(month.year, month.month)))
                    loaded.pomoCounts = database->fetchDailyPomoCounts(*first, *last);
            return loaded;
        },
        [this](Loaded loaded) {
            // A load of another month (overtaken while it ran) is not this month's data.
            if (loaded.month != month_)
                return;
            loaded_ = std::move(loaded);
            recomputeCells();
            recomputeSummary();
        });
}

void CalendarController::recomputeCells() {
    const Date now = clock_.now();
    cells_ = dayCells(month_, loaded_.summaries, loaded_.pomoCounts, dashboard_.selectedDate(), now);
    const QLocale locale;
    std::vector<CalendarDayItem> items;
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        CalendarDayItem item;
        item.key = static_cast<int>(i);
        if (const auto& cell = cells_[i]) {
            const QDate date(month_.year, month_.month, cell->day);
            item.isEmpty = false;
            item.day = cell->day;
            item.circleColor = tintColor(productivityColor(*cell));
            item.hoursText = toQString(hoursText(*cell));
            item.pomodoroText = toQString(pomodoroText(*cell));
            item.isSelected = cell->isSelected;
            item.isToday = cell->isToday;
            item.isFuture = cell->isFuture;
            item.accessibleName = locale.toString(date, QStringLiteral("dddd d MMMM")) +
                                  QStringLiteral(": ") + toQString(dayFigures(*cell));
        }
        items.push_back(std::move(item));
    }
    days_.setRows(std::move(items));
}

void CalendarController::recomputeSummary() {
    const MonthStats stats = monthStats(loaded_.summaries, loaded_.pomoCounts);
    std::vector<CalendarStatItem> cards;
    for (const StatCard& card : analytics::statCards(stats))
        cards.push_back({static_cast<int>(cards.size()), toQString(card.label), toQString(card.value),
                         toQColor(card.color)});
    statCards_.setRows(std::move(cards));

    CalendarHeader header;
    header.title = QLocale().standaloneMonthName(month_.month, QLocale::LongFormat) + u' ' +
                   QString::number(month_.year);
    header.canGoForward = !isFutureMonth(month_, clock_.now());
    header.hasCategoryBar = stats.totalSeconds > 0;
    header_ = std::move(header);
    recomputeShares();
    emit monthChanged();
}

void CalendarController::recomputeShares() {
    const auto totals = combinedTotals(loaded_.summaries);
    const std::int64_t total = monthStats(loaded_.summaries, {}).totalSeconds;
    const CategoriesByID categories = categoriesByID(dashboard_.categories());
    barSegments_.setRows(shareItems(categoryShares(totals, kBarSegments, total, barWidth_, categories)));
    legend_.setRows(shareItems(categoryShares(totals, kLegendEntries, total, 0, categories)));
}

}  // namespace larkspan
