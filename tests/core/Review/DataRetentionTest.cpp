// Throwing old activities away: the cut, what stays, and a store that refuses.
#include <gtest/gtest.h>

#include "ActivityBuilder.h"
#include "Review/DataRetention.h"
#include "TempDir.h"

namespace larkspan {
namespace {

using namespace test;

constexpr Date now = 1'763'884'800.0;

struct DataRetention : ::testing::Test {
    TempDir dir;
    Database db{dir / "tracker.db"};
};

TEST_F(DataRetention, DeletesWhatStartedBeforeTheCutAndKeepsEverythingElse) {
    for (const auto period : {RetentionPeriod::threeMonths, RetentionPeriod::oneYear}) {
        const Date cut = now - retentionSeconds(period);
        const auto before = db.insertActivity(ActivityBuilder(0, cut - 1, 7'200));
        const auto at = db.insertActivity(ActivityBuilder(0, cut, 60));
        db.saveLearnedRule("app_name", "Notes", category_id::writing);
        ASSERT_TRUE(deleteDataOlderThan(db, period, now));
        EXPECT_FALSE(db.fetchActivity(before));
        EXPECT_TRUE(db.fetchActivity(at));
        EXPECT_EQ(db.fetchLearnedRules().size(), 1u);
        EXPECT_EQ(db.fetchCategories().size(), Category::seeded().size());
    }
    EXPECT_EQ(retentionSeconds(RetentionPeriod::threeMonths), 90 * 86'400.0);
}

TEST_F(DataRetention, CompactingGivesTheDeletedSpaceBack) {
    const auto file = dir / "tracker.db";
    const std::string title(4'000, 'x');
    for (int i = 0; i < 2'000; ++i)
        db.insertActivity(ActivityBuilder(0, now - 400 * 86'400.0 + i, 60).title(title));
    db.exec("PRAGMA wal_checkpoint(TRUNCATE)");
    const auto full = std::filesystem::file_size(file);
    ASSERT_TRUE(deleteDataOlderThan(db, RetentionPeriod::oneYear, now));
    ASSERT_TRUE(compact(db));
    EXPECT_LT(std::filesystem::file_size(file) * 10, full);
}

TEST_F(DataRetention, AReadOnlyStoreChangesNothing) {
    const auto id = db.insertActivity(ActivityBuilder(0, 0, 60));
    // As a file the user cannot write behaves, whoever runs the test.
    db.exec("PRAGMA query_only=ON");
    EXPECT_FALSE(deleteDataOlderThan(db, RetentionPeriod::threeMonths, now));
    EXPECT_FALSE(compact(db));
    EXPECT_TRUE(db.fetchActivity(id));
}

}  // namespace
}  // namespace larkspan
