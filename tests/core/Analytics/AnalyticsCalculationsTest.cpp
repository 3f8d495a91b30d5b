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

TEST(LocalDays, CountedByTheLocalDayOfTheStart) {
    ScopedTimeZone zone{"Asia/Kolkata"};
    EXPECT_EQ(uniqueDays({}), 0);
    // The 23:30 record runs into the 2nd but counts on the 1st; records out of order still count once.
    const std::vector<ActivityTotal> records = {
        record(localInstant(2026, 5, 1, 23, 30), 7200), record(localInstant(2026, 5, 3, 0, 0), 60),
        record(localInstant(2026, 5, 1, 8), 60), record(localInstant(2026, 5, 3, 23, 59, 59), 60)};
    EXPECT_EQ(uniqueDays(records), 2);
}

}  // namespace
}  // namespace larkspan::analytics
