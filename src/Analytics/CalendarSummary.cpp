#include "Analytics/CalendarSummary.h"

#include <algorithm>
#include <cstdio>

#include "Classification/Palette.h"

namespace larkspan::analytics {

MonthStats monthStats(const std::vector<DaySummary>& summaries,
                      const std::map<std::string, int>& pomoCounts) {
    MonthStats stats;
    for (const DaySummary& day : summaries) {
        if (day.totalSeconds <= 0)
            continue;
        ++stats.activeDays;
        stats.totalSeconds += day.totalSeconds;
        stats.productiveSeconds += day.productiveSeconds;
    }
    if (stats.activeDays > 0)
        stats.averageHours = static_cast<double>(stats.totalSeconds) / stats.activeDays / 3600;
    if (stats.totalSeconds > 0)
        stats.productivePercent = static_cast<int>(static_cast<double>(stats.productiveSeconds) /
                                                   static_cast<double>(stats.totalSeconds) * 100);
    for (const auto& [day, count] : pomoCounts)
        stats.pomodoros += count;
    return stats;
}

std::array<StatCard, 4> statCards(const MonthStats& stats) {
    char average[32];
    std::snprintf(average, sizeof average, "%.1fh", stats.averageHours);
    const Color productive = stats.productivePercent > 60   ? Palette::green
                             : stats.productivePercent > 30 ? Palette::orange
                                                            : Palette::red;
    return {{{"Active Days", std::to_string(stats.activeDays), Palette::blue},
             {"Avg/Day", average, Palette::purple},
             {"Productive", std::to_string(stats.productivePercent) + "%", productive},
             {"Pomodoros", "\U0001F345 " + std::to_string(stats.pomodoros), Palette::red}}};
}

std::vector<std::pair<std::int64_t, std::int64_t>> combinedTotals(const std::vector<DaySummary>& summaries) {
    std::map<std::int64_t, std::int64_t> seconds;
    for (const DaySummary& day : summaries) {
        if (day.totalSeconds <= 0)
            continue;
        for (const auto& [category, spent] : day.byCategory)
            seconds[category] += spent;
    }
    std::vector<std::pair<std::int64_t, std::int64_t>> totals(seconds.begin(), seconds.end());
    // Stable over the map's id order, so ties keep the smaller id first.
    std::stable_sort(totals.begin(), totals.end(),
                     [](const auto& a, const auto& b) { return a.second > b.second; });
    return totals;
}

std::vector<CategoryShare> categoryShares(const std::vector<std::pair<std::int64_t, std::int64_t>>& totals,
                                          std::size_t limit, std::int64_t totalSeconds, double barWidth,
                                          const CategoriesByID& categories) {
    std::vector<CategoryShare> shares;
    for (std::size_t i = 0; i < std::min(limit, totals.size()); ++i) {
        const auto [id, seconds] = totals[i];
        const Category* known = categoryWithID(categories, id);
        CategoryShare share{id, known ? known->name : "Other", known ? known->color() : Palette::grey,
                            seconds, 0};
        if (barWidth > 0 && totalSeconds > 0)
            share.width = std::max(kNarrowestSegment, barWidth * static_cast<double>(seconds) /
                                                          static_cast<double>(totalSeconds));
        shares.push_back(std::move(share));
    }
    return shares;
}

}  // namespace larkspan::analytics
