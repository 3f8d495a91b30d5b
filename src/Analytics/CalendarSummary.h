// The summary under the calendar's grid: the month's four cards and its "Time by Category" bar with
// legend, from the month's day summaries and pomodoro counts. Averages are per active day (a day
// with tracked time), not per day of the month.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "Analytics/CalendarMonth.h"

namespace larkspan::analytics {

struct MonthStats {
    int activeDays = 0;
    std::int64_t totalSeconds = 0;
    std::int64_t productiveSeconds = 0;
    double averageHours = 0;    // per active day
    int productivePercent = 0;  // truncated, 0 without tracked time
    std::int64_t pomodoros = 0;
};

MonthStats monthStats(const std::vector<DaySummary>& summaries, const std::map<std::string, int>& pomoCounts);

// One card: its value in its colour above its label.
struct StatCard {
    std::string label;
    std::string value;
    Color color;
};

// "Active Days", "Avg/Day", "Productive" and "Pomodoros", in that order. The "Productive" card is
// green above 60 %, orange above 30 %, red otherwise.
std::array<StatCard, 4> statCards(const MonthStats& stats);

// Seconds per category id over the active days, most first; equal seconds keep the smaller id first.
std::vector<std::pair<std::int64_t, std::int64_t>> combinedTotals(const std::vector<DaySummary>& summaries);

// A segment of the bar or an entry of its legend.
struct CategoryShare {
    std::int64_t categoryID = 0;
    std::string name;  // "Other" for an id not in the catalogue
    Color color;       // grey for an id not in the catalogue
    std::int64_t seconds = 0;
    double width = 0;  // pixels; the bar's segments only
};

inline constexpr std::size_t kBarSegments = 6;
inline constexpr std::size_t kLegendEntries = 4;
inline constexpr double kNarrowestSegment = 2;  // pixels, so a tiny share still shows

// The first `limit` of `totals` with their names and colours. Each width is `barWidth` × its share
// of `totalSeconds`, at least kNarrowestSegment; 0 when `barWidth` is 0 or less.
std::vector<CategoryShare> categoryShares(const std::vector<std::pair<std::int64_t, std::int64_t>>& totals,
                                          std::size_t limit, std::int64_t totalSeconds, double barWidth,
                                          const CategoriesByID& categories);

}  // namespace larkspan::analytics
