#include "Analytics/AnalyticsLoad.h"

#include <vector>

namespace larkspan::analytics {

AnalyticsData load(Database& database, TimeRange range, Date selectedDay, Date now) {
    const DateInterval period = dateRange(range, selectedDay, now);
    AnalyticsData data;
    data.activities = database.fetchActivityTotals(period.from, period.to);
    std::erase_if(data.activities, [](const ActivityRecord& record) {
        return record.durationSeconds <= kLongestDroppedSeconds;
    });
    data.topDomains = database.fetchTopDomains(period.from, period.to, kLoadedDomains);
    const DateInterval days = pomodoroDays(range, selectedDay, period);
    for (const auto& [day, count] : database.fetchDailyPomoCounts(days.from, days.to))
        data.totalPomos += count;
    return data;
}

}  // namespace larkspan::analytics
