// What the dashboard window's sidebar and detail area show, apart from any toolkit: the tabs with
// their labels and symbols, the live session card, the review button, and the shared selection that
// a calendar day tap moves. The window and its controller only lay these out.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Classification/Category.h"
#include "Tracking/ActivityRecord.h"

namespace larkspan {

// The dashboard's screens. The label is the raw value.
enum class DashTab { timeline, focus, calendar, analytics, settings, pendingReview };

// "Timeline", "Focus", "Calendar", "Analytics", "Settings", "Review".
const char* label(DashTab tab);
// The tab's symbol in the Icons table ("clock.fill", …).
const char* symbolName(DashTab tab);
// The tab for a label; none for any other text.
std::optional<DashTab> dashTabFromLabel(std::string_view text);
// The tabs of the sidebar list, in order: all but the review tab, which only the review button opens.
const std::array<DashTab, 5>& mainCases();
// The tab whose screen shows: an absent selection counts as the timeline.
constexpr DashTab shownTab(std::optional<DashTab> selected) {
    return selected.value_or(DashTab::timeline);
}

// The shared state of the dashboard's screens that outlives closing the window.
struct DashboardSelection {
    std::optional<DashTab> tab = DashTab::timeline;
    Date date = 0;  // seconds since 1970; the day the timeline and the calendar show
};

// A tap on a calendar day: that date shows, on the timeline.
void onDayTap(DashboardSelection& selection, Date date);

// The card at the top of the sidebar for the session in progress.
struct LiveSessionCard {
    std::string icon;    // the category's emoji, or "⏱"
    std::string title;   // the session's display title, one line
    std::string status;  // "Live · " and the category's name, or "Live · Tracking"
    Color color;         // the category's colour, or grey; the dot, and the background at 12 %
    bool operator==(const LiveSessionCard&) const = default;
};

// The card for `session`, its category looked up by id in `categories`; none without a session.
std::optional<LiveSessionCard> liveSessionCard(const std::optional<ActivityRecord>& session,
                                               const std::vector<Category>& categories);

// The button below the tab list that opens the review screen.
struct ReviewButton {
    std::string title;   // "Review Activities"
    std::string detail;  // "3 need categorizing"
    bool operator==(const ReviewButton&) const = default;
};

// The button for `pendingCount` waiting activities; none below 1.
std::optional<ReviewButton> reviewButton(std::int64_t pendingCount);

}  // namespace larkspan
