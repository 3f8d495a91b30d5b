// The two charts of the analytics screen: the daily activity bars and the productivity pattern by
// hour of day, with their bar geometry for a chart of a given height in points.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "Analytics/EffectiveCategory.h"
#include "Tracking/ActivityRecord.h"

namespace larkspan::analytics {

inline constexpr double kMinimumBarHeight = 2;  // points; an empty or tiny bar stays visible

// One day of the daily activity chart.
struct DailyBar {
    std::string key;                     // "MM/dd", as groupByDay keys it
    std::string label;                   // dayLabel of the key
    std::int64_t totalSeconds = 0;       // every record of the day
    std::int64_t productiveSeconds = 0;  // its productive records
    double height = 0;                   // points, at least kMinimumBarHeight
    double productiveHeight = 0;         // points of the bar, from its bottom, that are productive
    bool operator==(const DailyBar&) const = default;
};

// One bar per local day that has records, oldest first; days without records leave no gap. A bar is
// max(2, chartHeight × day total ÷ largest day total) high, and its productive part is that height
// times productive ÷ total. Days are told apart within the year-less key by their date, so a window
// over New Year puts December before January.
std::vector<DailyBar> dailySeries(const std::vector<ActivityTotal>& records, const CategoriesByID& catMap,
                                  double chartHeight);

// Productive minutes by local hour of the day (0 to 23), averaged over the days that have any
// record. Each productive record with a positive duration adds all its minutes to the hour in which
// it began, however long it runs. Hours without productive work have no entry.
using HourlyMinutes = std::map<int, double>;
HourlyMinutes hourlyProductiveMinutes(const std::vector<ActivityTotal>& records,
                                      const CategoriesByID& catMap);

inline constexpr int kFirstChartHour = 6;  // the pattern chart shows hours 6 to 23
inline constexpr int kLastChartHour = 23;

// One column of the productivity pattern chart.
struct HourlyColumn {
    int hour = 0;          // 6 to 23
    std::string label;     // hourLabel of the hour, as the timeline's grid writes it
    double value = 0;      // minutes from the map, 0 for an hour without an entry
    double height = 0;     // points, at least kMinimumBarHeight
    double intensity = 0;  // value ÷ the largest value shown, 0 to 1
    double opacity = 0;    // 0.2 + 0.7 × intensity
    bool operator==(const HourlyColumn&) const = default;
};

// The 18 columns for hours 6 to 23. Hours 0 to 5 stay in the map but out of the chart, so a map with
// only early-morning work gives 18 columns of value 0 and height 2.
std::vector<HourlyColumn> hourlyChart(const HourlyMinutes& minutes, double chartHeight);

}  // namespace larkspan::analytics
