#include "Analytics/AnalyticsLoad.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "LocalInstant.h"
#include "ScopedTimeZone.h"
#include "TempDir.h"

namespace larkspan::analytics {
namespace {

using test::localInstant;
using test::ScopedTimeZone;
using test::TempDir;

class AnalyticsLoad : public ::testing::Test {
protected:
    void add(Date start, std::int64_t seconds, std::optional<std::string> domain = std::nullopt) {
        ActivityRecord record;
        record.appName = "Browser";
        record.categoryID = 1;
        record.urlDomain = std::move(domain);
        record.startTime = start;
        record.endTime = start + static_cast<double>(seconds);
        record.durationSeconds = seconds;
        db.insertActivity(record);
    }
    void pomodoros(Date when, int count) {
        for (int i = 0; i < count; ++i)
            db.incrementDailyPomoCount(when);
    }

    ScopedTimeZone zone{"America/New_York"};
    TempDir dir;
    Database db{dir / "tracker.db"};
    const Date now = localInstant(2026, 11, 18, 15);        // a Wednesday
    const Date weekStart = localInstant(2026, 11, 11, 15);  // exactly 7 × 24 hours earlier
};

TEST_F(AnalyticsLoad, WeekKeepsRecordsOverFiveSecondsButCountsEveryWebsiteSecond) {
    add(weekStart - 1, 600);
    add(weekStart, 60);  // both bounds are inclusive
    add(localInstant(2026, 11, 12, 9), 5, "short.example");
    add(localInstant(2026, 11, 12, 10), 6);
    add(localInstant(2026, 11, 12, 11), 300, "short.example");
    for (int i = 1; i <= 10; ++i)
        add(localInstant(2026, 11, 13, 8, i), 10 * i, "site" + std::to_string(i) + ".example");
    add(now, 30);
    add(now + 1, 600);

    const AnalyticsData data = load(db, TimeRange::week, now, now);
    std::vector<std::int64_t> durations;
    for (const ActivityRecord& record : data.activities)
        durations.push_back(record.durationSeconds);
    EXPECT_EQ(durations,
              (std::vector<std::int64_t>{60, 6, 300, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100, 30}));
    // The 5-second visit is no activity here, yet its seconds count for its website; of eleven
    // websites the ten longest come.
    ASSERT_EQ(data.topDomains.size(), 10u);
    EXPECT_EQ(data.topDomains.front(), (DomainTotal{"short.example", 305}));
    EXPECT_EQ(data.topDomains.back(), (DomainTotal{"site2.example", 20}));
}

TEST_F(AnalyticsLoad, PomodorosOfWholeLocalDaysAndOfThePastDayAlone) {
    pomodoros(localInstant(2026, 11, 10, 20), 8);  // before the week's oldest day
    pomodoros(localInstant(2026, 11, 11, 8), 2);   // the oldest day, hours before the window opens
    pomodoros(localInstant(2026, 11, 12, 8), 3);
    pomodoros(localInstant(2026, 11, 18, 9), 1);

    EXPECT_EQ(load(db, TimeRange::week, now, now).totalPomos, 6);
    EXPECT_EQ(load(db, TimeRange::today, localInstant(2026, 11, 12, 12), now).totalPomos, 1);
    // A past day ends at the next midnight, which the next day's count must not join.
    EXPECT_EQ(load(db, TimeRange::day, localInstant(2026, 11, 11, 12), now).totalPomos, 2);
    EXPECT_EQ(load(db, TimeRange::month, now, now).totalPomos, 14);
}

}  // namespace
}  // namespace larkspan::analytics
