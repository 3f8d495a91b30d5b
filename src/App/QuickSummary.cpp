#include "App/QuickSummary.h"
#include "App/Glyphs.h"
#include "Classification/Palette.h"

#include <algorithm>
#include <cmath>

namespace larkspan {

std::string formatSeconds(std::int64_t seconds) {
    if (seconds < 60) {
        return std::to_string(seconds) + "s";
    }
    if (seconds < 3600) {
        return std::to_string(seconds / 60) + "m";
    }
    return std::to_string(seconds / 3600) + "h " + std::to_string((seconds % 3600) / 60) + "m";
}

std::vector<ActivityRecord> recentActivities(std::vector<ActivityRecord> activities) {
    std::erase_if(activities,
                  [](const ActivityRecord& a) { return a.durationSeconds <= kRecentMinimumSeconds; });
    // Stable, so rows starting in the same second keep the store's order.
    std::stable_sort(
        activities.begin(), activities.end(),
        [](const ActivityRecord& a, const ActivityRecord& b) { return a.startTime > b.startTime; });
    return activities;
}

std::vector<RecentRow> recentRows(const std::vector<ActivityRecord>& recent,
                                  const CategoriesByID& categories) {
    std::vector<RecentRow> rows;
    for (const ActivityRecord& activity : recent) {
        if (rows.size() == kRecentRowLimit) {
            break;
        }
        const Category* category = categoryWithID(categories, activity.categoryID);
        rows.push_back({activity.id, category ? category->icon : glyph::questionMark, activity.displayTitle(),
                        activity.startTime, formatSeconds(activity.durationSeconds)});
    }
    return rows;
}

Breakdown breakdown(const std::optional<DaySummary>& summary, const CategoriesByID& categories) {
    Breakdown result;
    if (!summary || summary->byCategory.empty()) {
        return result;
    }
    result.hasData = true;
    std::vector<std::pair<std::int64_t, std::int64_t>> ranked(summary->byCategory.begin(),
                                                              summary->byCategory.end());
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const auto& a, const auto& b) { return a.second > b.second; });
    ranked.resize(std::min(ranked.size(), kBreakdownPlaces));
    const std::int64_t total = summary->totalSeconds;
    for (const auto& [id, seconds] : ranked) {
        const Category* category = categoryWithID(categories, id);
        if (!category) {
            continue;
        }
        const double fraction = total >= 1 ? static_cast<double>(seconds) / static_cast<double>(total) : 0;
        result.bars.push_back({*category, seconds, fraction, formatSeconds(seconds)});
    }
    return result;
}

std::optional<ProductivityLine> productivityLine(const std::optional<DaySummary>& summary) {
    if (!summary || summary->totalSeconds < 1) {
        return std::nullopt;
    }
    // The ratio of a day's own parts lies in [0, 1]; the clamp keeps a corrupt summary from overflowing.
    const double scaled = std::clamp(summary->productivityRatio() * 100, -1e9, 1e9);
    const int percent = static_cast<int>(std::trunc(std::isnan(scaled) ? 0 : scaled));
    const ProductivityTone tone = percent > 60   ? ProductivityTone::green
                                  : percent > 30 ? ProductivityTone::orange
                                                 : ProductivityTone::red;
    return ProductivityLine{percent, tone, std::to_string(percent) + "% productive today"};
}

Color toneColor(ProductivityTone tone) {
    switch (tone) {
        case ProductivityTone::green:
            return Palette::green;
        case ProductivityTone::orange:
            return Palette::orange;
        case ProductivityTone::red:
            break;
    }
    return Palette::red;
}

SessionRow sessionRow(const std::optional<ActivityRecord>& session, const CategoriesByID& categories) {
    if (!session) {
        return SessionRow{glyph::cup, "No active session", "", std::nullopt, false};
    }
    const Category* category = categoryWithID(categories, session->categoryID);
    SessionRow row;
    row.icon = category ? category->icon : glyph::stopwatch;
    row.title = session->displayTitle();
    row.subtitle = (category ? category->name : std::string("Uncategorized")) + " \u2022 Now";
    if (category) {
        row.dot = category->color();
    }
    row.hasSession = true;
    return row;
}

TimerControls timerControls(PomodoroTimer::Mode mode, PomodoroTimer::RunState state) {
    const bool running = state == PomodoroTimer::RunState::running;
    return TimerControls{mode == PomodoroTimer::Mode::focus ? glyph::tomato : glyph::cup,
                         running ? "pause.fill" : "play.fill", running,
                         state != PomodoroTimer::RunState::idle, running ? Palette::running : 0.0};
}

std::string pendingBannerText(std::int64_t count) {
    return std::to_string(count) + " activities need review";
}

std::string pendingFooterText(std::int64_t count) {
    return std::to_string(count) + " pending";
}

}  // namespace larkspan
