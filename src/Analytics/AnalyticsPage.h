// Everything the analytics screen draws for one period, computed in one call from what one load
// brought from the store and the category catalogue, so that the screen only lays it out. Nothing is
// cached: the screen calls analyticsPage again whenever it draws, with the catalogue of that moment.
//
// Workload: the longest period, 90 days, holds some 130,000 records for a heavy user; the page is
// then computed in a handful of linear passes plus sorts of a few hundred entries.
#pragma once

#include <cstdint>
#include <vector>

#include "Analytics/AnalyticsCalculations.h"

namespace larkspan::analytics {

inline constexpr double kDailyChartHeight = 130;   // points
inline constexpr double kHourlyChartHeight = 110;  // points
inline constexpr std::size_t kShownFocusSessions = 5;

// What one load of a period brings from the store.
struct AnalyticsData {
    std::vector<ActivityTotal> activities;  // records of the period longer than 5 seconds, oldest first
    std::vector<DomainTotal> topDomains;    // the period's 10 longest websites, longest first
    std::int64_t totalPomos = 0;            // pomodoros of the period's local days
};

// The five tiles at the top of the page.
struct AnalyticsSummary {
    std::int64_t totalSeconds = 0;
    std::int64_t productiveSeconds = 0;
    std::int64_t score = 0;  // whole percent of the total that is productive
    std::int64_t pomodoros = 0;
    std::int64_t focusCount = 0;  // every focus session, not only those listed
    std::int64_t activeDays = 0;
    bool operator==(const AnalyticsSummary&) const = default;
};

struct AnalyticsPage {
    AnalyticsSummary summary;
    std::vector<DailyBar> dailyBars;          // for a chart kDailyChartHeight high; empty: no data
    HourlyMinutes hourlyMinutes;              // empty: no productive activity in the period
    std::vector<HourlyColumn> hourlyColumns;  // for a chart kHourlyChartHeight high
    std::vector<FocusSession> focusSessions;  // all of them, longest first
    std::int64_t longestFocusSession = 0;     // seconds
    std::vector<CategoryFigure> categories;   // at most 8
    std::vector<AppFigure> applications;      // at most 10
    std::vector<WebsiteFigure> websites;      // at most 8; empty: no websites card
};

AnalyticsPage analyticsPage(const AnalyticsData& data, const std::vector<Category>& categories);

}  // namespace larkspan::analytics
