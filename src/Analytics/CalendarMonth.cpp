#include "Analytics/CalendarMonth.h"

#include <cstdio>

#include "Analytics/AnalyticsCalculations.h"
#include "Classification/Palette.h"
#include "Platform/LocalDay.h"

namespace larkspan::analytics {

namespace {

constexpr std::int64_t kLongestUncolouredSeconds = 600;

bool sameLocalDay(Date a, Date b) {
    return startOfLocalDay(a) == startOfLocalDay(b);
}

}  // namespace

YearMonth monthOf(Date instant) {
    const auto fields = localFields(instant);
    if (!fields)
        return {};
    return {fields->tm_year + 1900, fields->tm_mon + 1};
}

YearMonth addMonths(YearMonth month, int months) {
    const long index = static_cast<long>(month.year) * 12 + (month.month - 1) + months;
    const long year = index >= 0 ? index / 12 : (index - 11) / 12;
    return {static_cast<int>(year), static_cast<int>(index - year * 12) + 1};
}

bool isFutureMonth(YearMonth month, Date now) {
    return month > monthOf(now);
}

std::vector<std::optional<Date>> gridDates(YearMonth month) {
    std::vector<std::optional<Date>> cells;
    const auto first = localMidnight(month.year, month.month, 1);
    const auto fields = first ? localFields(*first) : std::nullopt;
    if (!fields)
        return cells;
    cells.resize(static_cast<std::size_t>(fields->tm_wday));  // 0 is Sunday
    const int length = daysInMonth(month.year, month.month);
    for (int day = 1; day <= length; ++day) {
        if (const auto midnight = localMidnight(month.year, month.month, day))
            cells.emplace_back(*midnight);
    }
    return cells;
}

double DayCell::hoursTracked() const {
    return summary ? static_cast<double>(summary->totalSeconds) / 3600 : 0;
}

std::vector<std::optional<DayCell>> dayCells(YearMonth month, const std::vector<DaySummary>& summaries,
                                             const std::map<std::string, int>& pomoCounts, Date selectedDate,
                                             Date now) {
    std::map<std::string, const DaySummary*> byDay;
    for (const DaySummary& summary : summaries)
        byDay.emplace(localDayString(summary.date), &summary);

    std::vector<std::optional<DayCell>> cells;
    for (const std::optional<Date>& date : gridDates(month)) {
        if (!date) {
            cells.emplace_back();
            continue;
        }
        DayCell cell;
        cell.date = *date;
        cell.day = localFields(*date).value_or(std::tm{}).tm_mday;
        const std::string key = localDayString(*date);
        if (const auto found = byDay.find(key); found != byDay.end())
            cell.summary = *found->second;
        if (const auto count = pomoCounts.find(key); count != pomoCounts.end())
            cell.pomoCount = count->second;
        cell.isSelected = sameLocalDay(*date, selectedDate);
        cell.isToday = sameLocalDay(*date, now);
        cell.isFuture = *date > now;
        cells.emplace_back(std::move(cell));
    }
    return cells;
}

std::optional<Tint> productivityColor(const DayCell& cell) {
    if (!cell.summary || cell.summary->totalSeconds <= kLongestUncolouredSeconds)
        return std::nullopt;
    const double ratio = cell.summary->productivityRatio();
    if (ratio > 0.6)
        return Tint{Palette::green, 0.4 + ratio * 0.3};
    if (ratio > 0.3)
        return Tint{Palette::orange, 0.35};
    return Tint{Palette::red, 0.3};
}

std::string hoursText(const DayCell& cell) {
    const double hours = cell.hoursTracked();
    if (hours <= 0)
        return {};
    char text[32];
    std::snprintf(text, sizeof text, "%.0fh", hours);
    return text;
}

std::string pomodoroText(const DayCell& cell) {
    return cell.pomoCount >= 1 ? "\U0001F345" + std::to_string(cell.pomoCount) : std::string();
}

std::string dayFigures(const DayCell& cell) {
    if (cell.isFuture)
        return "in the future";
    const std::int64_t total = cell.summary ? cell.summary->totalSeconds : 0;
    std::string text = total > 0
                           ? formatTime(total) + ", " +
                                 std::to_string(static_cast<int>(cell.summary->productivityRatio() * 100)) +
                                 " % productive"
                           : "nothing tracked";
    if (cell.pomoCount > 0)
        text += ", " + std::to_string(cell.pomoCount) + (cell.pomoCount == 1 ? " pomodoro" : " pomodoros");
    return text;
}

}  // namespace larkspan::analytics
