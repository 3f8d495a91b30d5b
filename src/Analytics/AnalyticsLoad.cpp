#include "Analytics/AnalyticsLoad.h"

#include <utility>
#include <vector>

namespace larkspan::analytics {

AnalyticsData load(Database& database, TimeRange range, Date selectedDay, Date now) {
    const DateInterval period = dateRange(range, selectedDay, now);
    AnalyticsData data;
    PeriodActivities rows = database.fetchPeriodActivities(period.from, period.to, kLongestDroppedSeconds);
    data.activities = std::move(rows.activities);
    if (rows.domains.size() > kLoadedDomains)
        rows.domains.resize(kLoadedDomains);
    data.topDomains = std::move(rows.domains);
    const DateInterval days = pomodoroDays(range, selectedDay, period);
    for (const auto& [day, count] : database.fetchDailyPomoCounts(days.from, days.to))
        data.totalPomos += count;
    return data;
}

}  // namespace larkspan::analytics
