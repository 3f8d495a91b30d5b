#include "Analytics/AnalyticsScreen.h"

#include <gtest/gtest.h>

#include <vector>

#include "CategorizedRecord.h"
#include "LocalInstant.h"
#include "ScopedTimeZone.h"

namespace larkspan::analytics {
namespace {

using namespace test;

AnalyticsPage pageOf(std::vector<ActivityTotal> records, std::vector<DomainTotal> domains = {}) {
    return analyticsPage({std::move(records), std::move(domains), 0}, Category::seeded());
}

// `count` focus sessions of 30 minutes, an hour apart.
std::vector<ActivityTotal> sessions(int count) {
    std::vector<ActivityTotal> records;
    for (int i = 0; i < count; ++i)
        records.push_back(record(localInstant(2026, 3, 3, 8 + i), 1800 + i));
    return records;
}

TEST(AnalyticsScreen, TilesAndBarsOfAShortDay) {
    // Five minutes read as minutes, and the bar stays visible beside a long day.
    ScopedTimeZone zone{"Europe/Berlin"};
    const AnalyticsPage page = pageOf(
        {record(localInstant(2026, 3, 2, 9), 300), record(localInstant(2026, 3, 3, 9), 36000, kMusic)});
    EXPECT_EQ(statTiles(page.summary)[1].spoken, "Productive: 5m, 0 %");
    EXPECT_EQ(page.dailyBars[0].height, kMinimumBarHeight);
    EXPECT_EQ(dailyBarFigure(page.dailyBars[0]), "5m, 100 % productive");
    EXPECT_EQ(dailyBarFigure(page.dailyBars[1]), "10h 0m, 0 % productive");
}

TEST(AnalyticsScreen, SectionsFollowTheRangeAndTheFigures) {
    ScopedTimeZone zone{"Europe/Berlin"};
    // Without web activity there is no websites card.
    const auto sectionsOf = [](int count, TimeRange range) {
        return analyticsSections(pageOf(sessions(count)), range);
    };
    EXPECT_EQ(sectionsOf(5, TimeRange::week),
              (AnalyticsSections{false, true, false, analytics_text::patternAverage, false, false,
                                 "5 sessions", "Longest: 30m", "", false, false, false}));
    const AnalyticsSections day{true,  false,        false,          analytics_text::patternOneDay, false,
                                false, "6 sessions", "Longest: 30m", "+ 1 more sessions",           false,
                                false, false};
    EXPECT_EQ(sectionsOf(6, TimeRange::day), day);

    // Only unproductive work: every empty text of the productive sections.
    const AnalyticsSections idle = analyticsSections(
        pageOf({record(localInstant(2026, 3, 3, 9), 3600, kGaming)}, {{"a.org", 60}}), TimeRange::month);
    EXPECT_EQ(idle, (AnalyticsSections{false, true, false, analytics_text::patternAverage, true, true, "", "",
                                       "", false, true, false}));
}

TEST(AnalyticsScreen, ADeletedCategoryReadsOtherAndABackwardClockDrawsNothingNegative) {
    ScopedTimeZone zone{"Europe/Berlin"};
    const Date nine = localInstant(2026, 3, 3, 9);
    const AnalyticsPage deleted = pageOf({record(nine, 900, 999), record(nine + 900, 600)});
    EXPECT_EQ(deleted.categories.front().name, "Other");
    EXPECT_EQ(shareFigure(deleted.categories.front().seconds, deleted.categories.front().fraction),
              "15m, 60 %");

    // Written before the clock went back a day: a negative duration, and an end before its start.
    const AnalyticsPage page =
        pageOf({record(nine, 600), record(nine + 700, -86400), {"Notes", kCoding, nine + 800, nine, 300}});
    for (const DailyBar& bar : page.dailyBars) {
        EXPECT_GE(bar.productiveHeight, 0);
        EXPECT_LE(bar.productiveHeight, bar.height);
        EXPECT_EQ(dailyBarFigure(bar).find('-'), std::string::npos);
    }
    for (const CategoryFigure& figure : page.categories)
        EXPECT_EQ(shareFigure(figure.seconds, figure.fraction).find('-'), std::string::npos);

    // A selected day after today can't step forward; stepping back crosses a clock change whole.
    const Date now = localInstant(2026, 3, 30, 12);
    EXPECT_FALSE(canStepForward(now + 86400, now));
    EXPECT_EQ(stepDay(now + 86400, 1, now), localInstant(2026, 3, 31));
    EXPECT_EQ(stepDay(now, -1, now), localInstant(2026, 3, 29));
    EXPECT_EQ(stepDay(localInstant(2026, 3, 28, 18), 5, now), localInstant(2026, 3, 30));
    EXPECT_TRUE(canStepForward(localInstant(2026, 3, 29, 23, 59), now));
}

}  // namespace
}  // namespace larkspan::analytics
