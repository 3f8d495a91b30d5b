// What the analytics screen writes and which of its parts show, from one computed page: the fixed
// words, the five tiles, the sections' empty states and counts, the day bar's stepping, and the
// figures a screen reader says for every tile, bar and row. The screen's controller only adds
// localized dates and times and lays these out.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "Analytics/AnalyticsPage.h"
#include "Analytics/TimeRange.h"

namespace larkspan::analytics {

namespace analytics_text {
inline constexpr const char* title = "Analytics";
inline constexpr const char* range = "Range";
inline constexpr const char* today = "Today";
inline constexpr const char* previousDay = "Previous day";
inline constexpr const char* nextDay = "Next day";
inline constexpr const char* dailyTitle = "Daily Activity";
inline constexpr const char* noDataForPeriod = "No data for this period";
inline constexpr const char* legendProductive = "Productive";
inline constexpr const char* legendOther = "Other";
inline constexpr const char* patternTitle = "Productivity Pattern";
inline constexpr const char* patternOneDay = "Productive minutes per hour";
inline constexpr const char* patternAverage = "Average productive minutes per hour of day";
inline constexpr const char* noProductiveActivity = "No productive activity in this period";
inline constexpr const char* sessionsTitle = "Focus Sessions";
inline constexpr const char* sessionsSubtitle = "Uninterrupted productive stretches ≥ 25 min";
inline constexpr const char* noSessions =
    "No focus sessions in this period. Sessions ≥ 25 min of continuous productive work appear here.";
inline constexpr const char* categoryTitle = "By Category";
inline constexpr const char* noData = "No data";
inline constexpr const char* websitesTitle = "Top Websites";
inline constexpr const char* applicationsTitle = "By Application";
}  // namespace analytics_text

enum class TileTone { blue, green, red, purple, orange };

// One of the five tiles under the header.
struct StatTile {
    std::string label;   // "Total Tracked", …
    std::string value;   // "4h 12m", "3h 1m · 71%", "🍅 3", …
    std::string symbol;  // in the Icons table
    TileTone tone = TileTone::blue;
    std::string spoken;  // label and value for a screen reader: "Productive: 3h 1m, 71 %"
    bool operator==(const StatTile&) const = default;
};

// Total, productive with the score, pomodoros, focus sessions and active days, in that order. A
// store that failed gives "0m", "0m · 0%", "🍅 0", "0", "0".
std::array<StatTile, 5> statTiles(const AnalyticsSummary& summary);

// Which parts of the page show, and their counted lines.
struct AnalyticsSections {
    bool dayBar = false;      // only for `day`
    bool dailyChart = false;  // not for `day` nor `today`
    bool dailyEmpty = true;   // "No data for this period" instead of bars
    std::string patternSubtitle;
    bool patternEmpty = true;   // "No productive activity in this period" instead of columns
    bool sessionsEmpty = true;  // the long "No focus sessions …" line instead of rows
    std::string sessionCount;   // "6 sessions"; empty without sessions
    std::string longest;        // "Longest: 1h 2m"; empty without sessions
    std::string moreSessions;   // "+ 1 more sessions" past the fifth; otherwise empty
    bool categoriesEmpty = true;
    bool websites = false;  // without websites the category card spans the row
    bool applicationsEmpty = true;
    bool operator==(const AnalyticsSections&) const = default;
};

AnalyticsSections analyticsSections(const AnalyticsPage& page, TimeRange range);

// What a screen reader says after a bar's or row's name. Every fraction is clamped to 0…1, so a
// record whose clock ran backwards never reads as a negative share.
std::string dailyBarFigure(const DailyBar& bar);                 // "4h 12m, 68 % productive"
std::string hourlyColumnFigure(const HourlyColumn& column);      // "9a: 20 productive minutes"
std::string shareFigure(std::int64_t seconds, double fraction);  // "2h 3m, 34 %"

// A fraction drawn as a bar's width or height: 0 to 1, and 0 for anything not a number.
double drawnFraction(double fraction);

// The day bar. `selectedDay` moves by local calendar days and never past the day of `now`; a
// selected day on or after today's (the clock was set back) cannot step forward.
bool canStepForward(Date selectedDay, Date now);
Date stepDay(Date selectedDay, int days, Date now);

}  // namespace larkspan::analytics
