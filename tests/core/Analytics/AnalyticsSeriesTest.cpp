#include "Analytics/AnalyticsSeries.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "CategorizedRecord.h"
#include "LocalInstant.h"
#include "ScopedTimeZone.h"

namespace larkspan::analytics {
namespace {

using namespace test;

TEST(HourlyProductiveMinutes, AveragesOverDaysWithAnyRecord) {
    ScopedTimeZone zone{"Europe/Berlin"};
    // An hour of work at 09:00 on one day; the two other days have only neutral time, yet count.
    const std::vector<ActivityTotal> records = {
        record(localInstant(2026, 6, 1, 9), 3600),
        record(localInstant(2026, 6, 2, 14), 600, kMusic),
        record(localInstant(2026, 6, 3, 23, 50), 1200, kMusic),
    };
    EXPECT_EQ(hourlyProductiveMinutes(records, seededMap()), (HourlyMinutes{{9, 20.0}}));
    // No records at all: nothing to average, and no division by zero.
    EXPECT_TRUE(hourlyProductiveMinutes({}, seededMap()).empty());
    // A long activity counts wholly in its first hour.
    EXPECT_EQ(hourlyProductiveMinutes({record(localInstant(2026, 6, 1, 8, 30), 5 * 3600)}, seededMap()),
              (HourlyMinutes{{8, 300.0}}));
}

TEST(HourlyProductiveMinutes, HoursOfAClockChangeDayAreLocalHours) {
    ScopedTimeZone zone{"America/New_York"};
    // On 8 March 2026 the hour after 01:59 is 03:00, so 12 hours after midnight it is 13:00; on
    // 1 November 01:00 to 01:59 comes twice and 12 hours after midnight it is 11:00. Two days.
    const Date spring = localInstant(2026, 3, 8);
    const Date autumn = localInstant(2026, 11, 1);
    const auto minutes = hourlyProductiveMinutes(
        {record(spring + 1.5 * 3600, 600), record(spring + 2.5 * 3600, 600), record(spring + 12 * 3600, 600),
         record(autumn + 1.5 * 3600, 600), record(autumn + 2.5 * 3600, 600), record(autumn + 12 * 3600, 600)},
        seededMap());
    EXPECT_EQ(minutes, (HourlyMinutes{{1, 15.0}, {3, 5.0}, {11, 5.0}, {13, 5.0}}));
}

TEST(HourlyChart, ColumnsForSixToTwentyThreeScaledToTheLargest) {
    const auto columns = hourlyChart({{3, 50.0}, {9, 40.0}, {10, 10.0}, {20, 0.5}}, 110);
    ASSERT_EQ(columns.size(), 18u);
    // Hour 3 is left out of the chart, so 9 is the largest column.
    EXPECT_EQ(columns[3], (HourlyColumn{9, "9a", 40, 110, 1, 0.2 + 0.7}));  // opacity 0.2 + 0.7 × intensity
    EXPECT_EQ(columns[4], (HourlyColumn{10, "10a", 10, 27.5, 0.25, 0.2 + 0.7 * 0.25}));
    EXPECT_DOUBLE_EQ(columns[14].height, 2);  // 1.375 points, raised to the minimum
    EXPECT_DOUBLE_EQ(columns[0].opacity, 0.2);

    // Work only before 06:00: every column is 0 and 2 high.
    for (const HourlyColumn& column : hourlyChart({{5, 30.0}}, 110)) {
        EXPECT_EQ(column.value, 0);
        EXPECT_EQ(column.height, 2);
        EXPECT_EQ(column.intensity, 0);
    }
}

TEST(DailySeries, WeekOverNewYearRunsFromDecemberToJanuary) {
    ScopedTimeZone zone{"Pacific/Auckland"};
    std::vector<ActivityTotal> records;
    for (int day = 28; day <= 34; ++day)
        records.push_back(record(localInstant(2026, 12, day, 10), 600 * (day - 27)));
    std::string labels;
    for (const DailyBar& bar : dailySeries(records, seededMap(), 130))
        labels += bar.label + " ";
    EXPECT_EQ(labels, "28 29 30 31 01 02 03 ");
}

TEST(DailySeries, BarsScaleToTheLongestDayWithTheirProductivePart) {
    ScopedTimeZone zone{"Europe/Berlin"};
    const std::vector<ActivityTotal> records = {
        record(localInstant(2026, 3, 7, 9), 3000),
        record(localInstant(2026, 3, 7, 11), 1000, kMusic),
        record(localInstant(2026, 3, 9, 23, 59), 2000, kMusic),  // runs past midnight, counts on the 9th
        record(localInstant(2026, 3, 10, 12), 10),
        record(localInstant(2026, 3, 11, 8), 0),
    };
    const auto bars = dailySeries(records, seededMap(), 130);
    // The 8th has no records and leaves no gap; the 10th's 0.325 points are raised to the minimum; an
    // empty day has no share and divides nothing by zero.
    EXPECT_EQ(bars, (std::vector<DailyBar>{{"03/07", "07", 4000, 3000, 130, 97.5},
                                           {"03/09", "09", 2000, 0, 65, 0},
                                           {"03/10", "10", 10, 10, 2, 2},
                                           {"03/11", "11", 0, 0, 2, 0}}));
    EXPECT_TRUE(dailySeries({}, seededMap(), 130).empty());
}

}  // namespace
}  // namespace larkspan::analytics
