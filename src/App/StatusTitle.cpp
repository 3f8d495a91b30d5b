#include "App/StatusTitle.h"

namespace larkspan {

namespace {

const char* const kStopwatch = "\u23F1";
const char* const kTomato = "\U0001F345";
const char* const kCup = "\u2615";
const char* const kPause = "\u23F8";

}  // namespace

std::string StatusTitle::plainText() const {
    std::string text;
    for (const auto& segment : segments)
        text += segment.text;
    return text;
}

StatusTitle buildStatusTitle(const std::optional<ActivityRecord>& session, std::int64_t pendingCount,
                             const std::map<std::int64_t, Category>& categories,
                             const TimerTitleState& timer) {
    StatusTitle title;
    title.pendingCount = pendingCount;
    if (!session) {
        title.icon = kStopwatch;
        title.label = "Starting\u2026";
    } else {
        const Category* category = nullptr;
        if (session->categoryID) {
            auto found = categories.find(*session->categoryID);
            if (found != categories.end())
                category = &found->second;
        }
        title.icon = category ? category->icon : kStopwatch;
        if (session->isIdle()) {
            title.label = kAwayAppName;
        } else {
            title.label = category ? category->name : session->appName;
        }
    }
    title.segments.push_back(
        {title.icon + " " + title.label, 12, TitleWeight::medium, TitleColor::label, false});

    if (timer.active) {
        title.timerMark = timer.focusMode ? kTomato : kCup;
        title.timerPaused = timer.paused;
        std::string text = "  " + *title.timerMark + (timer.paused ? kPause : "") + " " + timer.displayTime;
        title.segments.push_back({std::move(text), 11, TitleWeight::medium,
                                  timer.paused ? TitleColor::secondaryLabel : TitleColor::label, true});
    }

    if (pendingCount >= 1) {
        title.segments.push_back({"  " + std::to_string(pendingCount) + " \u25CF", 11, TitleWeight::bold,
                                  TitleColor::orange, false});
    }
    return title;
}

}  // namespace larkspan
