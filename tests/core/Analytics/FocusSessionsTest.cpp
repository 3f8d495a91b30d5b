#include "Analytics/FocusSessions.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <vector>

#include "ActivityBuilder.h"

namespace larkspan::analytics {
namespace {

constexpr std::int64_t kCoding = 1;        // productive
constexpr std::int64_t kSocialMedia = 17;  // unproductive
constexpr Date kNine = 1'767'258'000;      // any instant; sessions don't depend on the zone

ActivityRecord record(Date start, std::int64_t seconds, std::optional<std::int64_t> category = kCoding) {
    return test::ActivityBuilder(0, start, seconds).category(category);
}

std::vector<FocusSession> sessionsOf(const std::vector<ActivityRecord>& records) {
    return focusSessions(records, categoriesByID(Category::seeded()));
}

TEST(FocusSessions, TwentyFiveMinutesIsTheShortestSession) {
    // 24:59 of work, in two records a second apart, leaves nothing; 25:00 makes one session.
    EXPECT_TRUE(sessionsOf({record(kNine, 1000), record(kNine + 1001, 499)}).empty());
    EXPECT_EQ(sessionsOf({record(kNine, 1000), record(kNine + 1001, 500)}),
              (std::vector<FocusSession>{{kNine, kNine + 1501, 1500}}));
}

TEST(FocusSessions, GapOfThreeHundredSecondsJoinsAndThreeHundredOneSplits) {
    EXPECT_EQ(sessionsOf({record(kNine, 900), record(kNine + 1200, 900)}),
              (std::vector<FocusSession>{{kNine, kNine + 2100, 1800}}));
    EXPECT_TRUE(sessionsOf({record(kNine, 900), record(kNine + 1201, 900)}).empty());
}

TEST(FocusSessions, OnlyTheGapInterruptsNotOtherWorkBetween) {
    // 15 minutes of work, 4 minutes of social media, 15 minutes of work: one session of the two
    // productive records, whose span is 34 minutes.
    const auto bridged =
        sessionsOf({record(kNine, 900), record(kNine + 900, 240, kSocialMedia), record(kNine + 1140, 900)});
    ASSERT_EQ(bridged.size(), 1u);
    EXPECT_EQ(bridged[0].duration, 1800);
    EXPECT_EQ(bridged[0].endTime - bridged[0].startTime, 34 * 60);

    // The same with 6 minutes between: two runs of 900 seconds, neither a session.
    EXPECT_TRUE(
        sessionsOf({record(kNine, 900), record(kNine + 900, 360, kSocialMedia), record(kNine + 1260, 900)})
            .empty());
}

TEST(FocusSessions, RecordsThatCannotCountAreSkipped) {
    // A record without a category is "Other", which is neutral; an id outside the catalogue is never
    // productive; an empty productive record neither counts nor closes the gap it sits in.
    EXPECT_TRUE(sessionsOf({record(kNine, 3000, std::nullopt)}).empty());
    EXPECT_TRUE(sessionsOf({record(kNine, 3000, 99)}).empty());
    EXPECT_TRUE(
        sessionsOf({record(kNine, 1000), record(kNine + 1200, 0), record(kNine + 1500, 1000)}).empty());
    // A start that is no instant at all is left out rather than breaking the order.
    auto broken = record(std::numeric_limits<double>::quiet_NaN(), 3000);
    EXPECT_EQ(sessionsOf({broken, record(kNine, 1500)}),
              (std::vector<FocusSession>{{kNine, kNine + 1500, 1500}}));
}

TEST(FocusSessions, OpenRecordEndsAtStartPlusDurationAndTheLastEndIsTaken) {
    // The open record (no end yet) reaches kNine + 1000; the next starts 300 later and joins.
    auto open = record(kNine, 1000);
    open.endTime.reset();
    EXPECT_EQ(sessionsOf({open, record(kNine + 1300, 500)}).size(), 1u);

    // An overlapping record that ends earlier replaces the run's end: the end is not the maximum.
    // The third record is then 301 seconds past that end and starts a run of its own.
    const auto sessions =
        sessionsOf({record(kNine, 2000), record(kNine + 100, 100), record(kNine + 501, 1600)});
    EXPECT_EQ(sessions,
              (std::vector<FocusSession>{{kNine, kNine + 200, 2100}, {kNine + 501, kNine + 2101, 1600}}));
}

TEST(FocusSessions, LongestFirstInStartOrderWhenEqual) {
    // Records arrive out of order; they are sorted by start before runs are formed.
    const auto sessions =
        sessionsOf({record(kNine + 20000, 1500), record(kNine + 10000, 2000), record(kNine, 1500)});
    EXPECT_EQ(sessions, (std::vector<FocusSession>{{kNine + 10000, kNine + 12000, 2000},
                                                   {kNine, kNine + 1500, 1500},
                                                   {kNine + 20000, kNine + 21500, 1500}}));
    EXPECT_EQ(longestFocusSession(sessions), 2000);
    EXPECT_EQ(longestFocusSession({}), 0);
}

}  // namespace
}  // namespace larkspan::analytics
