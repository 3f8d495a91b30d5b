#include "Analytics/FocusSessions.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <vector>

#include "CategorizedRecord.h"

namespace larkspan::analytics {
namespace {

using namespace test;

constexpr Date kNine = 1'767'258'000;  // any instant; sessions don't depend on the zone

TEST(FocusSessions, RunsOfProductiveWorkFromTwentyFiveMinutesJoinedAcrossGapsUpToFiveMinutes) {
    auto open = record(kNine, 1000);
    open.endTime.reset();
    struct Case {
        const char* name;
        std::vector<ActivityTotal> records;
        std::vector<FocusSession> sessions;
    };
    const Case cases[] = {
        {"24:59 of work is too short", {record(kNine, 1000), record(kNine + 1001, 499)}, {}},
        {"25:00 is a session",
         {record(kNine, 1000), record(kNine + 1001, 500)},
         {{kNine, kNine + 1501, 1500}}},
        {"a gap of 300 s joins",
         {record(kNine, 900), record(kNine + 1200, 900)},
         {{kNine, kNine + 2100, 1800}}},
        {"a gap of 301 s splits", {record(kNine, 900), record(kNine + 1201, 900)}, {}},
        // Other work between does not interrupt, only the gap between productive records does.
        {"4 minutes of social media between",
         {record(kNine, 900), record(kNine + 900, 240, kSocialMedia), record(kNine + 1140, 900)},
         {{kNine, kNine + 2040, 1800}}},
        {"6 minutes of social media between",
         {record(kNine, 900), record(kNine + 900, 360, kSocialMedia), record(kNine + 1260, 900)},
         {}},
        // No category reads as "Other", which is neutral; an id outside the catalogue is never productive.
        {"no category", {record(kNine, 3000, std::nullopt)}, {}},
        {"unknown category", {record(kNine, 3000, 99)}, {}},
        {"an empty record neither counts nor closes its gap",
         {record(kNine, 1000), record(kNine + 1200, 0), record(kNine + 1500, 1000)},
         {}},
        {"a start that is no instant is left out",
         {record(std::numeric_limits<double>::quiet_NaN(), 3000), record(kNine, 1500)},
         {{kNine, kNine + 1500, 1500}}},
        {"an open record ends at start plus duration",
         {open, record(kNine + 1300, 500)},
         {{kNine, kNine + 1800, 1500}}},
        // An overlapping record that ends earlier sets the run's end: the end is not the maximum.
        {"the last end is taken",
         {record(kNine, 2000), record(kNine + 100, 100), record(kNine + 501, 1600)},
         {{kNine, kNine + 200, 2100}, {kNine + 501, kNine + 2101, 1600}}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(focusSessions(c.records, seededMap()), c.sessions) << c.name;
}

TEST(FocusSessions, LongestFirstInStartOrderWhenEqual) {
    // Records arrive out of order; they are sorted by start before runs are formed.
    const auto sessions = focusSessions(
        {record(kNine + 20000, 1500), record(kNine + 10000, 2000), record(kNine, 1500)}, seededMap());
    EXPECT_EQ(sessions, (std::vector<FocusSession>{{kNine + 10000, kNine + 12000, 2000},
                                                   {kNine, kNine + 1500, 1500},
                                                   {kNine + 20000, kNine + 21500, 1500}}));
    EXPECT_EQ(longestFocusSession(sessions), 2000);
    EXPECT_EQ(longestFocusSession({}), 0);
}

}  // namespace
}  // namespace larkspan::analytics
