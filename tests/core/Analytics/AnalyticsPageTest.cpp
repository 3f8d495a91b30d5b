#include "Analytics/AnalyticsPage.h"

#include <gtest/gtest.h>

#include <vector>

#include "CategorizedRecord.h"
#include "LocalInstant.h"
#include "ScopedTimeZone.h"

namespace larkspan::analytics {
namespace {

using namespace test;

TEST(AnalyticsPage, TilesCountEverySessionAndDayAndAnEmptyPeriodGivesZeros) {
    ScopedTimeZone zone{"Europe/Berlin"};
    // Seven focus sessions of 30 minutes on two days, an hour apart, and an hour of gaming.
    AnalyticsData data;
    for (int i = 0; i < 7; ++i)
        data.activities.push_back(record(localInstant(2026, 4, 1 + i / 4, 8 + i), 1800));
    data.activities.push_back(record(localInstant(2026, 4, 2, 20), 3600, kGaming));
    data.totalPomos = 4;
    const AnalyticsPage page = analyticsPage(data, Category::seeded());
    EXPECT_EQ(page.summary, (AnalyticsSummary{16200, 12600, 77, 4, 7, 2}));
    EXPECT_EQ(page.longestFocusSession, 1800);
    EXPECT_EQ(page.dailyBars[0].height, 104);  // 7200 of the second day's 9000 seconds
    EXPECT_EQ(page.dailyBars[1].height, kDailyChartHeight);
    EXPECT_EQ(page.hourlyColumns[2].height, kHourlyChartHeight);  // 08:00, 15 minutes a day

    // An empty period: zeros, empty lists, and the chart's columns all the same.
    const AnalyticsPage empty = analyticsPage({}, Category::seeded());
    EXPECT_EQ(empty.summary, AnalyticsSummary{});
    EXPECT_TRUE(empty.dailyBars.empty() && empty.hourlyMinutes.empty() && empty.focusSessions.empty() &&
                empty.categories.empty() && empty.applications.empty());
    EXPECT_EQ(empty.hourlyColumns.size(), 18u);
}

}  // namespace
}  // namespace larkspan::analytics
