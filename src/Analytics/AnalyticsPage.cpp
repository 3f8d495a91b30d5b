#include "Analytics/AnalyticsPage.h"

namespace larkspan::analytics {

AnalyticsPage analyticsPage(const AnalyticsData& data, const std::vector<Category>& categories) {
    const CategoriesByID catMap = categoriesByID(categories);
    const std::vector<ActivityTotal>& records = data.activities;
    AnalyticsPage page;

    const PeriodTotals totals = periodTotals(records, catMap);
    page.focusSessions = focusSessions(records, catMap);
    page.longestFocusSession = longestFocusSession(page.focusSessions);
    page.summary = {totals.totalSeconds,
                    totals.productiveSeconds,
                    productivityScore(totals),
                    data.totalPomos,
                    static_cast<std::int64_t>(page.focusSessions.size()),
                    uniqueDays(records)};

    page.dailyBars = dailySeries(records, catMap, kDailyChartHeight);
    page.hourlyMinutes = hourlyProductiveMinutes(records, catMap);
    page.hourlyColumns = hourlyChart(page.hourlyMinutes, kHourlyChartHeight);
    page.categories = categoryFigures(records, catMap);
    page.applications = appFigures(records, catMap);
    page.websites = websiteFigures(data.topDomains);
    return page;
}

}  // namespace larkspan::analytics
