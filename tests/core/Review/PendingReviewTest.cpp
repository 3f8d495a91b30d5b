// Settling pending activities from the review tab: what each answer writes, what it teaches, and
// which cards a load lists.
#include <gtest/gtest.h>

#include "ActivityBuilder.h"
#include "Review/PendingReview.h"
#include "TrackerRig.h"

namespace larkspan {
namespace {

using namespace test;

struct PendingReviewTest : ::testing::Test, TrackerRig {
    PendingReview review{db, *manager};

    std::int64_t pending(std::int64_t seconds, std::optional<std::int64_t> category,
                         double start = 1'763'880'000) {
        return db.insertActivity(ActivityBuilder(0, start, seconds)
                                     .app("Firefox", "org.mozilla.firefox")
                                     .domain("example.org")
                                     .category(category)
                                     .pending(0.5));
    }
    void load() { review.finishLoad(PendingReview::fetch(db, review.beginLoad())); }
};

TEST(PendingReviewGrid, AwayBreakIsNeverOfferedNorHighlighted) {
    const auto grid = PendingReview::gridCategories(Category::seeded());
    EXPECT_EQ(grid.size(), Category::seeded().size() - 1);
    EXPECT_EQ(categoryWithID(grid, category_id::awayBreak), nullptr);
    const auto highlighted = [&](std::optional<std::int64_t> id) {
        return PendingReview::highlightedCategory(ActivityBuilder(1, 0, 60).category(id), grid);
    };
    EXPECT_EQ(highlighted(category_id::awayBreak), std::nullopt);
    EXPECT_EQ(highlighted(std::nullopt), std::nullopt);
    EXPECT_EQ(highlighted(category_id::coding), category_id::coding);
}

TEST_F(PendingReviewTest, ListsNewestFirstAndNeverAnActivityUnder30Seconds) {
    pending(29, category_id::coding);
    const auto older = pending(30, category_id::coding, 1'763'870'000);
    const auto newer = pending(600, category_id::coding);
    load();
    std::vector<std::int64_t> ids;
    std::ranges::transform(review.pending(), std::back_inserter(ids), &ActivityRecord::id);
    EXPECT_EQ(ids, (std::vector<std::int64_t>{newer, older}));
    EXPECT_FALSE(review.isLoading());
}

TEST_F(PendingReviewTest, ASettledCardNeverComesBackThroughALoadThatRacedTheWrite) {
    const auto id = pending(60, category_id::coding);
    const auto raced = PendingReview::fetch(db, review.beginLoad());
    review.finishLoad(raced);
    review.skip(id);
    // The same stale rows arrive again, and a pending row the screen settled reappears in the store.
    db.run("UPDATE activities SET is_approved=0, needs_approval=1 WHERE id=?", id);
    review.finishLoad(raced);
    load();
    EXPECT_TRUE(review.pending().empty());
}

TEST_F(PendingReviewTest, SkipAndApproveAllKeepTheSuggestionOrOtherAndLearnNothing) {
    const auto suggested = pending(60, category_id::coding);
    const auto unsuggested = pending(60, std::nullopt, 1'763'870'000);
    const auto third = pending(60, category_id::shopping, 1'763'860'000);
    load();
    review.skip(unsuggested);
    EXPECT_EQ(db.fetchActivity(unsuggested)->categoryID, category_id::other);
    review.approveAll();
    load();
    for (const auto& [id, category] : {std::pair{suggested, category_id::coding},
                                       {unsuggested, category_id::other},
                                       {third, category_id::shopping}}) {
        const auto row = db.fetchActivity(id);
        EXPECT_EQ(row->categoryID, category);
        EXPECT_TRUE(row->isApproved);
    }
    EXPECT_TRUE(db.fetchLearnedRules().empty());
    EXPECT_TRUE(review.pending().empty());
    EXPECT_EQ(db.pendingApprovalCount(), 0);
}

}  // namespace
}  // namespace larkspan
