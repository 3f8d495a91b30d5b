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
}

TEST(HourlyProductiveMinutes, LongActivityCountsWhollyInItsFirstHour) {
    ScopedTimeZone zone{"Europe/Berlin"};
    const auto minutes =
        hourlyProductiveMinutes({record(localInstant(2026, 6, 1, 8, 30), 5 * 3600)}, seededMap());
    EXPECT_EQ(minutes, (HourlyMinutes{{8, 300.0}}));
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
    EXPECT_EQ(columns.front().label, "6a");
    EXPECT_EQ(columns.back().label, "11p");
    // Hour 3 is left out of the chart, so 9 is the largest column.
    EXPECT_EQ(columns[3].hour, 9);
    EXPECT_DOUBLE_EQ(columns[3].height, 110);
    EXPECT_DOUBLE_EQ(columns[3].opacity, 0.9);
    EXPECT_DOUBLE_EQ(columns[4].height, 27.5);
    EXPECT_DOUBLE_EQ(columns[4].intensity, 0.25);
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
    ASSERT_EQ(bars.size(), 4u);  // the 8th has no records and leaves no gap
    EXPECT_EQ(bars[0].key, "03/07");
    EXPECT_EQ(bars[0].label, "07");
    EXPECT_EQ(bars[0].totalSeconds, 4000);
    EXPECT_EQ(bars[0].productiveSeconds, 3000);
    EXPECT_DOUBLE_EQ(bars[0].height, 130);
    EXPECT_DOUBLE_EQ(bars[0].productiveHeight, 97.5);
    EXPECT_DOUBLE_EQ(bars[1].height, 65);
    EXPECT_DOUBLE_EQ(bars[1].productiveHeight, 0);
    EXPECT_DOUBLE_EQ(bars[2].height, 2);  // 0.325 points, raised to the minimum
    EXPECT_DOUBLE_EQ(bars[2].productiveHeight, 2);
    EXPECT_DOUBLE_EQ(bars[3].height, 2);  // an empty day: no share, no division by zero
    EXPECT_DOUBLE_EQ(bars[3].productiveHeight, 0);
    EXPECT_TRUE(dailySeries({}, seededMap(), 130).empty());
}

}  // namespace
}  // namespace larkspan::analytics
