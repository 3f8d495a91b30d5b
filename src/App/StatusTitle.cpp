#include "App/StatusTitle.h"
#include "App/Glyphs.h"

namespace larkspan {

std::string StatusTitle::plainText() const {
    std::string text;
    for (const auto& segment : segments)
        text += segment.text;
    return text;
}

StatusTitle buildStatusTitle(const std::optional<ActivityRecord>& session, std::int64_t pendingCount,
                             const CategoriesByID& categories, const TimerTitleState& timer) {
    StatusTitle title;
    title.pendingCount = pendingCount;
    if (!session) {
        title.icon = glyph::stopwatch;
        title.label = "Starting\u2026";
    } else {
        const Category* category = categoryWithID(categories, session->categoryID);
        title.icon = category ? category->icon : glyph::stopwatch;
        if (session->isIdle()) {
            title.label = kAwayAppName;
        } else {
            title.label = category ? category->name : session->appName;
        }
    }
    title.segments.push_back(
        {title.icon + " " + title.label, 12, TitleWeight::medium, TitleColor::label, false});

    if (timer.active) {
        title.timerMark = timer.focusMode ? glyph::tomato : glyph::cup;
        title.timerPaused = timer.paused;
        std::string text =
            "  " + *title.timerMark + (timer.paused ? glyph::pause : "") + " " + timer.displayTime;
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
