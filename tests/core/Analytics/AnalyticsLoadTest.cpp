#include "Analytics/AnalyticsLoad.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "ActivityBuilder.h"
#include "LocalInstant.h"
#include "ScopedTimeZone.h"
#include "SqliteFile.h"
#include "TempDir.h"

namespace larkspan::analytics {
namespace {

using namespace test;

class AnalyticsLoad : public ::testing::Test {
protected:
    void add(Date start, std::int64_t seconds, std::optional<std::string> domain = std::nullopt) {
        db.insertActivity(
            ActivityBuilder(0, start, seconds).app("Browser").category(1).domain(std::move(domain)));
    }
    static std::vector<std::int64_t> durations(const AnalyticsData& data) {
        std::vector<std::int64_t> seconds;
        for (const ActivityTotal& record : data.activities)
            seconds.push_back(record.durationSeconds);
        return seconds;
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
    add(localInstant(2026, 11, 12, 12), 900, "");  // no website, like a NULL domain
    for (int i = 1; i <= 10; ++i)
        add(localInstant(2026, 11, 13, 8, i), 10 * i, "site" + std::to_string(i) + ".example");
    add(now, 30);
    add(now + 1, 600);

    const AnalyticsData data = load(db, TimeRange::week, now, now);
    EXPECT_EQ(durations(data),
              (std::vector<std::int64_t>{60, 6, 300, 900, 10, 20, 30, 40, 50, 60, 70, 80, 90, 100, 30}));
    // The 5-second visit is no activity here, yet its seconds count for its website; of eleven
    // websites the ten longest come.
    ASSERT_EQ(data.topDomains.size(), 10u);
    EXPECT_EQ(data.topDomains.front(), (DomainTotal{"short.example", 305}));
    EXPECT_EQ(data.topDomains.back(), (DomainTotal{"site2.example", 20}));
}

TEST_F(AnalyticsLoad, StoreThatFailsGivesAnEmptyPeriod) {
    add(now - 600, 300, "site.example");
    db.incrementDailyPomoCount(now);
    ASSERT_EQ(load(db, TimeRange::week, now, now).totalPomos, 1);

    test::SqliteFile(dir / "tracker.db").exec("DROP TABLE activities; DROP TABLE daily_pomo_counts");
    for (const TimeRange range : kTimeRanges) {
        const AnalyticsData data = load(db, range, now, now);
        EXPECT_TRUE(data.activities.empty()) << rawValue(range);
        EXPECT_TRUE(data.topDomains.empty()) << rawValue(range);
        EXPECT_EQ(data.totalPomos, 0) << rawValue(range);
    }
}

}  // namespace
}  // namespace larkspan::analytics
