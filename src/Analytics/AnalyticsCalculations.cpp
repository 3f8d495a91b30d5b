#include "Analytics/AnalyticsCalculations.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "Analytics/LocalDayCache.h"

namespace larkspan::analytics {

PeriodTotals periodTotals(const std::vector<ActivityTotal>& records, const CategoriesByID& catMap) {
    PeriodTotals totals;
    for (const ActivityTotal& record : records) {
        totals.totalSeconds += record.durationSeconds;
        if (isProductive(record, catMap))
            totals.productiveSeconds += record.durationSeconds;
    }
    return totals;
}

std::int64_t productivityScore(const PeriodTotals& totals) {
    if (totals.totalSeconds <= 0)
        return 0;
    const double percent =
        static_cast<double>(totals.productiveSeconds) / static_cast<double>(totals.totalSeconds) * 100;
    // Only inconsistent input (productive beyond the total) can leave 0 to 100; keep the cast defined.
    return static_cast<std::int64_t>(std::clamp(std::trunc(percent), -1e15, 1e15));
}

std::int64_t uniqueDays(const std::vector<ActivityTotal>& records) {
    LocalDayCache days;
    std::vector<int> seen;
    for (const ActivityTotal& record : records) {
        const int day = days.dayOf(record.startTime).ordinal();
        if (seen.empty() || seen.back() != day)
            seen.push_back(day);
    }
    std::sort(seen.begin(), seen.end());
    return std::unique(seen.begin(), seen.end()) - seen.begin();
}

DayGroups groupByDay(const std::vector<ActivityTotal>& records) {
    LocalDayCache days;
    DayGroups groups;
    // Consecutive records nearly always share a day, so the key is built once per run of them.
    int lastDay = -1;
    std::vector<const ActivityTotal*>* group = nullptr;
    for (const ActivityTotal& record : records) {
        const LocalDay day = days.dayOf(record.startTime);
        if (group == nullptr || day.ordinal() != lastDay) {
            char key[16];
            std::snprintf(key, sizeof key, "%02d/%02d", day.month, day.day);
            group = &groups[key];
            lastDay = day.ordinal();
        }
        group->push_back(&record);
    }
    return groups;
}

std::string dayLabel(std::string_view key) {
    const auto slash = key.rfind('/');
    return std::string(slash == std::string_view::npos ? key : key.substr(slash + 1));
}

std::string formatTime(std::int64_t seconds) {
    if (seconds == 0)
        return "0m";
    if (seconds < 60)
        return std::to_string(seconds) + "s";
    if (seconds < 3600)
        return std::to_string(seconds / 60) + "m";
    return std::to_string(seconds / 3600) + "h " + std::to_string(seconds % 3600 / 60) + "m";
}

}  // namespace larkspan::analytics
