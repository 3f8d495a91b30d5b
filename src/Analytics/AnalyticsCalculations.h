// The plain figures of the analytics screen: sums, local days, labels and the one duration text of
// that screen. Everything here is a function of the records and the catalogue passed in; nothing is
// stored and nothing reads a clock. Local days and hours follow the TZ variable. The chart series,
// focus sessions, breakdowns and periods come with this header from their own files; the charts'
// hour labels are the timeline grid's hourLabel (Timeline/CanvasLayout.h).
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "Analytics/AnalyticsBreakdowns.h"
#include "Analytics/AnalyticsSeries.h"
#include "Analytics/EffectiveCategory.h"
#include "Analytics/FocusSessions.h"
#include "Analytics/TimeRange.h"
#include "Tracking/ActivityRecord.h"

namespace larkspan::analytics {

// Tracked and productive seconds of a period.
struct PeriodTotals {
    std::int64_t totalSeconds = 0;       // sum of every record's duration
    std::int64_t productiveSeconds = 0;  // that part in a productive category
    bool operator==(const PeriodTotals&) const = default;
};

PeriodTotals periodTotals(const std::vector<ActivityTotal>& records, const CategoriesByID& catMap);

// Productive ÷ total × 100, truncated toward zero; 0 when the total is 0 or less.
std::int64_t productivityScore(const PeriodTotals& totals);

// How many distinct local days the records' starts fall on. A record that runs past midnight
// counts for the day on which it began.
std::int64_t uniqueDays(const std::vector<ActivityTotal>& records);

// Records grouped by the local day of their start, keyed "MM/dd" with no year, each group in the
// order of `records`. The groups point into `records` and are valid as long as it is unchanged.
using DayGroups = std::map<std::string, std::vector<const ActivityTotal*>>;
DayGroups groupByDay(const std::vector<ActivityTotal>& records);

// The part of a day key after its last "/", or the whole key without one: "03/07" gives "07".
std::string dayLabel(std::string_view key);

// Seconds as "0m", "45s", "2m" or "1h 1m"; every division truncates. Negative input reads as
// seconds ("-5s").
std::string formatTime(std::int64_t seconds);

}  // namespace larkspan::analytics
