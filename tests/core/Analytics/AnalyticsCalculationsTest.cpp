#include "Analytics/AnalyticsCalculations.h"

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

TEST(FormatTime, SecondsMinutesOrHoursAndMinutesTruncated) {
    const std::pair<std::int64_t, const char*> cases[] = {
        {0, "0m"},       {45, "45s"},     {59, "59s"},      {60, "1m"},          {125, "2m"}, {3599, "59m"},
        {3600, "1h 0m"}, {3660, "1h 1m"}, {7199, "1h 59m"}, {360000, "100h 0m"}, {-5, "-5s"},
    };
    for (const auto& [seconds, text] : cases)
        EXPECT_EQ(formatTime(seconds), text) << seconds;
}

TEST(DayLabel, PartAfterTheLastSlash) {
    EXPECT_EQ(dayLabel("03/07"), "07");  // the leading zero stays
    EXPECT_EQ(dayLabel("a/b/c"), "c");
    EXPECT_EQ(dayLabel("today"), "today");
    EXPECT_EQ(dayLabel("12/"), "");
}

TEST(PeriodTotals, ProductiveOnlyForKnownProductiveCategories) {
    const CategoriesByID& catMap = seededMap();
    // No category reads as "Other" (neutral); id 99 is not in the catalogue and never productive.
    const std::vector<ActivityTotal> records = {record(0, 2000), record(0, 500, std::nullopt),
                                                record(0, 700, 99), record(0, 800, kGaming)};
    const PeriodTotals totals = periodTotals(records, catMap);
    EXPECT_EQ(totals, (PeriodTotals{4000, 2000}));
    EXPECT_EQ(productivityScore(totals), 50);
    // The score truncates: 2 of 3 is 66, not 67. Nothing tracked scores 0.
    EXPECT_EQ(productivityScore({3, 2}), 66);
    EXPECT_EQ(productivityScore({0, 0}), 0);
    EXPECT_EQ(productivityScore({-10, 5}), 0);
}

TEST(LocalDays, CountedAndGroupedByTheLocalDayOfTheStart) {
    ScopedTimeZone zone{"Asia/Kolkata"};
    EXPECT_EQ(uniqueDays({}), 0);
    // The 23:30 record runs into the 2nd but counts on the 1st; records out of order still count once.
    const std::vector<ActivityTotal> records = {
        record(localInstant(2026, 5, 1, 23, 30), 7200), record(localInstant(2026, 5, 3, 0, 0), 60),
        record(localInstant(2026, 5, 1, 8), 60), record(localInstant(2026, 5, 3, 23, 59, 59), 60)};
    EXPECT_EQ(uniqueDays(records), 2);

    // Days are grouped under their local month and day, in record order.
    const std::vector<ActivityTotal> grouped = {
        record(localInstant(2026, 5, 1, 23, 59), 1), record(localInstant(2026, 5, 2, 0, 0), 2),
        record(localInstant(2026, 5, 1, 6), 3), record(localInstant(2025, 5, 2, 12), 4)};
    const DayGroups groups = groupByDay(grouped);
    ASSERT_EQ(groups.size(), 2u);
    std::vector<std::int64_t> first;
    for (const ActivityTotal* r : groups.at("05/01"))
        first.push_back(r->durationSeconds);
    EXPECT_EQ(first, (std::vector<std::int64_t>{1, 3}));
    // The key holds no year: the same date of another year joins the group.
    EXPECT_EQ(groups.at("05/02").size(), 2u);
}

}  // namespace
}  // namespace larkspan::analytics
