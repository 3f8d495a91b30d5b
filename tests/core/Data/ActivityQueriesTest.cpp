#include <gtest/gtest.h>

#include "ActivityBuilder.h"
#include "Data/Database.h"
#include "TempDir.h"

namespace larkspan {
namespace {

using test::TempDir;

ActivityRecord activity(Date start, std::int64_t duration, bool needsApproval = false) {
    ActivityRecord record = test::ActivityBuilder(0, start, duration)
                                .app("Firefox", "org.mozilla.firefox")
                                .title("Docs")
                                .domain("example.org")
                                .category(4);
    record.url = "https://example.org/a";
    record.confidence = 0.4;
    record.needsApproval = needsApproval;
    return record;
}

class ActivityQueries : public ::testing::Test {
protected:
    TempDir dir;
    Database db{dir / "tracker.db"};
};

TEST_F(ActivityQueries, RecordsRoundTripWithFractionsAndAbsentFields) {
    ActivityRecord full = activity(1700000000.123456789, 75, true);
    full.notes = "";
    ActivityRecord bare;
    bare.appName = "Away";
    bare.startTime = 1700000100.5;
    full.id = db.insertActivity(full);
    bare.id = db.insertActivity(bare);
    EXPECT_EQ(db.fetchActivity(full.id), full);
    EXPECT_EQ(db.fetchActivity(bare.id), bare);
    EXPECT_EQ(db.fetchActivity(bare.id + 1), std::nullopt);

    // Times read back as the same 64-bit floats.
    db.updateActivityEnd(full.id, 1700000000.1 + 0.2, 12);
    EXPECT_EQ(db.fetchActivity(full.id)->endTime, 1700000000.1 + 0.2);
    EXPECT_EQ(db.fetchActivity(full.id)->durationSeconds, 12);
    db.updateActivityTimes(full.id, 5e-324, 10.999);
    EXPECT_EQ(db.fetchActivity(full.id)->startTime, 5e-324);
    EXPECT_EQ(db.fetchActivity(full.id)->durationSeconds, 10);
}

TEST_F(ActivityQueries, WritesCorrectAndDeleteRows) {
    const auto id = db.insertActivity(activity(1000, 60, true));
    // An end before the start stores 0.
    db.updateActivityTimes(id, 2000, 1500);
    EXPECT_EQ(db.fetchActivity(id)->durationSeconds, 0);
    // A category answer clears needs_approval even when not approving.
    db.updateActivityCategory(id, 7, false);
    EXPECT_FALSE(db.fetchActivity(id)->needsApproval);
    EXPECT_EQ(db.fetchActivity(id)->categoryID, 7);
    // A failing write is swallowed and leaves the row as it was.
    db.updateActivityCategory(id, 999, true);
    EXPECT_EQ(db.fetchActivity(id)->categoryID, 7);
    db.deleteActivity(id);
    EXPECT_EQ(db.fetchActivity(id), std::nullopt);
}

TEST_F(ActivityQueries, InsertThrowsWhenTheRowIsRefusedAndClampsHugeDurations) {
    ActivityRecord orphan = activity(1000, 60);
    orphan.categoryID = 999;  // no such category: the foreign key refuses it
    EXPECT_THROW(db.insertActivity(orphan), DBError);
    EXPECT_TRUE(db.fetchActivities(0, 1e10).empty());

    const auto id = db.insertActivity(activity(1000, std::int64_t{1} << 40));
    EXPECT_EQ(db.fetchActivity(id)->durationSeconds, 2147483647);
}

TEST_F(ActivityQueries, FetchActivitiesIncludesBothBoundsInStartOrder) {
    for (Date start : {1999.999, 2000.0, 2500.0, 3000.0, 3000.001, 2200.0})
        db.insertActivity(activity(start, 60));
    std::vector<Date> starts;
    for (const auto& record : db.fetchActivities(2000, 3000))
        starts.push_back(record.startTime);
    EXPECT_EQ(starts, (std::vector<Date>{2000, 2200, 2500, 3000}));
    EXPECT_TRUE(db.fetchActivities(3000.5, 2999).empty());
}

TEST_F(ActivityQueries, PendingMeansThirtySecondsOrMoreAwaitingAnAnswer) {
    const auto short29 = db.insertActivity(activity(100, 29, true));
    const auto long30 = db.insertActivity(activity(200, 30, true));
    const auto newest = db.insertActivity(activity(300, 500, true));
    db.insertActivity(activity(400, 500, false));  // decided by a rule
    ActivityRecord approved = activity(500, 500, true);
    approved.isApproved = true;
    db.insertActivity(approved);

    std::vector<std::int64_t> pending;
    for (const auto& record : db.fetchPendingApprovals())
        pending.push_back(record.id);
    EXPECT_EQ(pending, (std::vector<std::int64_t>{newest, long30}));
    EXPECT_EQ(db.fetchPendingApprovals(1).size(), 1u);
    EXPECT_EQ(db.pendingApprovalCount(), 2);
    db.updateActivityEnd(short29, 130, 30);
    EXPECT_EQ(db.pendingApprovalCount(), 3);
}

TEST_F(ActivityQueries, LearnedRulesKeepTheLastAnswerPerTypeAndKey) {
    db.saveLearnedRule("domain", "news.example", 16);
    db.saveLearnedRule("domain", "news.example", 4);
    db.saveLearnedRule("app_name", "news.example", 1);
    db.saveLearnedRule("domain", "ghost.example", 999);  // missing category: discarded
    EXPECT_EQ(db.fetchLearnedRules(),
              (std::vector<LearnedRule>{{"domain", "news.example", 4}, {"app_name", "news.example", 1}}));
}

}  // namespace
}  // namespace larkspan
