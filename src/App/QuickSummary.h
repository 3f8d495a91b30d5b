// What the quick summary popover shows, computed from the day's rows: the duration texts, the recent
// list, the breakdown bars with the productivity line, the session row, the timer's controls and the
// pending texts. Plain values in, plain values out; the popover's controller only formats dates and
// times with the user's locale and lays these out.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Classification/Category.h"
#include "Data/Database.h"
#include "Focus/PomodoroTimer.h"
#include "Tracking/ActivityRecord.h"

namespace larkspan {

// The popover's fixed labels.
namespace summary_text {
inline constexpr const char* today = "Today";
inline constexpr const char* tracked = "tracked";
inline constexpr const char* breakdownTitle = "Today's breakdown";
inline constexpr const char* noDataYet = "No data yet today";
inline constexpr const char* recentTitle = "Recent";
inline constexpr const char* nothingTracked = "Nothing tracked yet";
inline constexpr const char* tapToCategorize = "Tap to categorize them";
inline constexpr const char* openDashboard = "Open Dashboard";
}  // namespace summary_text

// Shortest activity, exclusive, that the recent list shows: a running session joins once a
// heartbeat has written more than this.
inline constexpr std::int64_t kRecentMinimumSeconds = 30;
inline constexpr std::size_t kRecentRowLimit = 5;
inline constexpr std::size_t kBreakdownPlaces = 4;

// "59s", "59m", "1h 0m": under a minute in seconds, under an hour in minutes, else hours and
// minutes; divisions truncate. A negative count (a clock set back) reads as seconds.
std::string formatSeconds(std::int64_t seconds);

// The activities longer than 30 seconds, newest start first.
std::vector<ActivityRecord> recentActivities(std::vector<ActivityRecord> activities);

struct RecentRow {
    std::int64_t id = -1;  // the activity's row id
    std::string icon;      // the category's emoji, or "❓"
    std::string title;
    Date startTime = 0;
    std::string duration;  // formatSeconds
    bool operator==(const RecentRow&) const = default;
};

// The first five of `recent` as the list draws them.
std::vector<RecentRow> recentRows(const std::vector<ActivityRecord>& recent,
                                  const CategoriesByID& categories);

struct BreakdownBar {
    Category category;
    std::int64_t seconds = 0;
    double fraction = 0;   // of the day's total, 0 when the total is under one second
    std::string duration;  // formatSeconds
    bool operator==(const BreakdownBar&) const = default;
};

struct Breakdown {
    bool hasData = false;  // a summary with at least one category; otherwise "No data yet today"
    std::vector<BreakdownBar> bars;
};

// The four categories with the most seconds, most first (ties by id). A category missing from
// `categories` is not drawn but still takes its place among the four.
Breakdown breakdown(const std::optional<DaySummary>& summary, const CategoriesByID& categories);

enum class ProductivityTone { green, orange, red };

struct ProductivityLine {
    int percent = 0;  // the ratio × 100, truncated
    ProductivityTone tone = ProductivityTone::red;
    std::string text;  // "<percent>% productive today"
    bool operator==(const ProductivityLine&) const = default;
};

// Absent without a summary or with less than one tracked second. Green above 60 %, orange above 30 %,
// red otherwise.
std::optional<ProductivityLine> productivityLine(const std::optional<DaySummary>& summary);
Color toneColor(ProductivityTone tone);

struct SessionRow {
    std::string icon;          // the category's emoji, "⏱" without one, "☕" without a session
    std::string title;         // displayTitle, or "No active session"
    std::string subtitle;      // "<category or Uncategorized> • Now"; empty without a session
    std::optional<Color> dot;  // the category's colour; absent for grey, and without a session
    bool hasSession = false;
    bool operator==(const SessionRow&) const = default;
};

SessionRow sessionRow(const std::optional<ActivityRecord>& session, const CategoriesByID& categories);

struct TimerControls {
    std::string modeIcon;          // "🍅" in focus, "☕" in either break
    std::string mainSymbol;        // "pause.fill" while running, else "play.fill"
    bool mainPauses = false;       // the main button pauses; otherwise it starts or resumes
    bool showsStop = false;        // any state but idle
    double backgroundOpacity = 0;  // of the mode colour: 0.06 while running
    bool operator==(const TimerControls&) const = default;
};

TimerControls timerControls(PomodoroTimer::Mode mode, PomodoroTimer::RunState state);

// "<count> activities need review" and "<count> pending".
std::string pendingBannerText(std::int64_t count);
std::string pendingFooterText(std::int64_t count);

}  // namespace larkspan
