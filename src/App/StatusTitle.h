// The tray's status title as styled segments: what is tracked, the timer, and the pending count.
// The tray draws an icon from it and shows the whole text as its tooltip.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Classification/Category.h"
#include "Tracking/ActivityRecord.h"

namespace larkspan {

enum class TitleColor { label, secondaryLabel, orange };
enum class TitleWeight { medium, bold };

struct TitleSegment {
    std::string text;
    double pointSize = 12;
    TitleWeight weight = TitleWeight::medium;
    TitleColor color = TitleColor::label;
    bool monospacedDigits = false;
    bool operator==(const TitleSegment&) const = default;
};

// What the title needs of the Pomodoro timer.
struct TimerTitleState {
    bool active = false;  // running or paused
    bool paused = false;
    bool focusMode = false;   // focus shows a tomato, either break a cup
    std::string displayTime;  // "mm:ss"
};

struct StatusTitle {
    std::string icon;                      // the category's emoji, or "⏱"
    std::string label;                     // category name, "Away", the application, or "Starting…"
    std::optional<std::string> timerMark;  // "🍅" or "☕" while the timer is not idle
    bool timerPaused = false;
    std::int64_t pendingCount = 0;
    std::vector<TitleSegment> segments;

    std::string plainText() const;
};

StatusTitle buildStatusTitle(const std::optional<ActivityRecord>& session, std::int64_t pendingCount,
                             const CategoriesByID& categories, const TimerTitleState& timer);

}  // namespace larkspan
