#include <gtest/gtest.h>

#include "ActivityBuilder.h"
#include "Data/Database.h"
#include "ScopedTimeZone.h"
#include "SqliteFile.h"
#include "TempDir.h"

namespace larkspan {
namespace {

using namespace test;

class Summaries : public ::testing::Test {
protected:
    void add(Date start, std::int64_t seconds, std::optional<std::int64_t> category) {
        db.insertActivity(test::ActivityBuilder(0, start, seconds).category(category));
    }

    ScopedTimeZone zone{"America/New_York"};
    TempDir dir;
    Database db{dir / "tracker.db"};
};

// 2024-03-10 is the spring-forward day in New York: 23 hours from 05:00 UTC to 04:00 UTC next day.
constexpr Date kMarch10Midnight = 1710046800;  // 2024-03-10 00:00 EST
constexpr Date kMarch11Midnight = 1710129600;  // 2024-03-11 00:00 EDT

TEST_F(Summaries, ClockChangeDayHasItsRealLengthAndBothMidnightsCount) {
    add(kMarch10Midnight - 1, 100, 1);              // previous day
    add(kMarch10Midnight, 60, 1);                   // Coding, productive
    add(kMarch10Midnight + 3 * 3600, 30, 16);       // Entertainment
    add(kMarch11Midnight - 1, 7200, std::nullopt);  // runs past midnight: counts whole, under 21
    add(kMarch11Midnight, 5, 12);                   // exactly the next midnight: in both days
    add(kMarch11Midnight + 1, 1000, 1);             // next day only
    add(kMarch10Midnight + 60, 0, 1);               // no duration
    add(kMarch10Midnight + 61, -40, 2);             // negative duration
    // A category that no longer exists (written beside the store, without foreign keys).
    test::SqliteFile(dir / "tracker.db")
        .exec(
            "INSERT INTO activities (app_name, category_id, start_time, duration_seconds) VALUES ('App', "
            "404, " +
            std::to_string(kMarch10Midnight + 62) + ", 20)");

    const DaySummary day = db.daySummary(kMarch10Midnight + 20 * 3600);
    EXPECT_EQ(day.totalSeconds, 60 + 30 + 7200 + 5 + 20);
    EXPECT_EQ(day.productiveSeconds, 60);
    EXPECT_EQ(day.byCategory,
              (std::map<std::int64_t, std::int64_t>{{1, 60}, {12, 5}, {16, 30}, {21, 7200}, {404, 20}}));
    EXPECT_DOUBLE_EQ(day.productivityRatio(), 60.0 / 7315.0);
    EXPECT_EQ(db.daySummary(kMarch11Midnight).totalSeconds, 1005);
    EXPECT_EQ(DaySummary{}.productivityRatio(), 0);
}

TEST_F(Summaries, MonthHasOneSummaryPerLocalDay) {
    constexpr Date kFeb29Noon = 1709226000;  // 2024-02-29 12:00 EST
    add(kFeb29Noon, 90, 3);
    const auto february = db.monthSummaries(2024, 2);
    ASSERT_EQ(february.size(), 29u);
    EXPECT_EQ(february.back().totalSeconds, 90);
    EXPECT_EQ(february.back().date, kFeb29Noon - 12 * 3600);
    EXPECT_EQ(db.monthSummaries(2023, 2).size(), 28u);
    EXPECT_EQ(db.monthSummaries(1900, 2).size(), 28u);
    EXPECT_EQ(db.monthSummaries(2000, 2).size(), 29u);
    add(kMarch11Midnight, 5, 12);  // in the 10th and the 11th, as daySummary has it
    add(kMarch11Midnight + 60, 7, 1);
    const auto march = db.monthSummaries(2024, 3);
    ASSERT_EQ(march.size(), 31u);
    EXPECT_EQ(march[10].date - march[9].date, 23 * 3600);
    EXPECT_EQ(march[9].byCategory, (std::map<std::int64_t, std::int64_t>{{12, 5}}));
    EXPECT_EQ(march[10], db.daySummary(kMarch11Midnight));
    EXPECT_EQ(march[10].totalSeconds, 12);
    EXPECT_TRUE(db.monthSummaries(2024, 13).empty());
    EXPECT_TRUE(db.monthSummaries(2024, 0).empty());
}

}  // namespace
}  // namespace larkspan
