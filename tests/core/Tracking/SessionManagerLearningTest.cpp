// What an answer to a pending activity teaches the engine, seen through the store and the next
// session of the same activity.
#include <gtest/gtest.h>

#include <set>
#include <tuple>

#include "TrackerRig.h"

namespace larkspan {
namespace {

using namespace test;
using Rule = std::tuple<std::string, std::string, std::int64_t>;

struct SessionManagerLearningTest : ::testing::Test, TrackerRig {
    // Runs `sample` as a session of `seconds`, closed by a sample of another application; returns
    // its row id.
    std::int64_t visit(const RawActivity& sample, double seconds = 40) {
        manager->process(sample);
        mainQueue.drain();
        const auto id = manager->currentSession.get()->id;
        timers.advance(seconds);
        manager->process({"kitty", "net.kovidgoyal.kitty", {}, {}, {}});
        mainQueue.drain();
        timers.advance(10);
        return id;
    }
    std::set<Rule> rules() {
        std::set<Rule> all;
        for (const auto& rule : db.fetchLearnedRules())
            all.emplace(rule.ruleType, rule.ruleKey, rule.categoryID);
        return all;
    }
    // The category and confidence of a new session of `sample`, and whether it asks.
    std::tuple<std::optional<std::int64_t>, double, bool> nextSessionOf(const RawActivity& sample) {
        manager->process(sample);
        mainQueue.drain();
        const auto& session = *manager->currentSession.get();
        return {session.categoryID, session.confidence, session.needsApproval};
    }
};

RawActivity page(std::string url, std::string domain, std::optional<std::string> title) {
    return RawActivity{"Google Chrome", "com.google.Chrome", std::move(title), std::move(url),
                       std::move(domain)};
}

TEST_F(SessionManagerLearningTest, AnswerOnAPlainDomainTeachesDomainBundleAndNameAndDecidesTheNextVisit) {
    const auto wiki = page("https://Wiki.Example.org/a", "Wiki.Example.org", "Team wiki");
    const auto id = visit(wiki);
    ASSERT_EQ(manager->nextPendingApproval()->id, id);
    const auto other = visit(page("https://q.example.net/", "q.example.net", "Q"));
    manager->resolveApproval(id, category_id::research);
    const auto row = *db.fetchActivity(id);
    EXPECT_TRUE(row.categoryID == category_id::research && row.isApproved && !row.needsApproval);
    // The domain keeps its case.
    EXPECT_EQ(rules(), (std::set<Rule>{{"domain", "Wiki.Example.org", category_id::research},
                                       {"bundle_id", "com.google.Chrome", category_id::research},
                                       {"app_name", "Google Chrome", category_id::research}}));
    // Other rows, even pending ones, keep what they have: the learning acts on new sessions.
    EXPECT_TRUE(db.fetchActivity(other)->needsApproval);
    // The next visit is decided without asking, and so is any plain page of that browser.
    EXPECT_EQ(nextSessionOf(wiki), std::make_tuple(std::optional(category_id::research), 0.99, false));
    EXPECT_EQ(nextSessionOf(page("https://new.example.com/", "new.example.com", "New")),
              std::make_tuple(std::optional(category_id::research), 0.99, false));
}

TEST_F(SessionManagerLearningTest, AnswerOnAMixedServiceTeachesOnlyItsAddressAndTitle) {
    // The mixed test lower-cases the domain.
    const auto lecture = page("https://youtube.com/watch?v=1", "YouTube.com", "Lecture 3: Sorting - YouTube");
    manager->resolveApproval(visit(lecture), category_id::learning);
    EXPECT_EQ(rules(), (std::set<Rule>{{"url", "https://youtube.com/watch?v=1", category_id::learning},
                                       {"title", "Lecture 3: Sorting - YouTube", category_id::learning}}));
    EXPECT_EQ(nextSessionOf(lecture), std::make_tuple(std::optional(category_id::learning), 0.99, false));

    // A title that only names the service is not remembered; without an address nothing is.
    for (const char* bare : {"YouTube", "Twitter", "Reddit"}) {
        manager->resolveApproval(visit(page("https://reddit.com/r/" + std::string(bare), "reddit.com", bare)),
                                 category_id::socialMedia);
        manager->resolveApproval(
            visit(RawActivity{"Google Chrome", "com.google.Chrome", bare, std::nullopt, "x.com"}),
            category_id::socialMedia);
    }
    const auto all = rules();
    EXPECT_EQ(all.size(), 5u);
    EXPECT_TRUE(all.contains({"url", "https://reddit.com/r/Twitter", category_id::socialMedia}));
    for (const auto& [type, key, category] : all)
        EXPECT_TRUE(type == "url" || type == "title") << type;
}

TEST_F(SessionManagerLearningTest, AnsweringTwiceKeepsTheLaterAnswerAndAnUnknownIdChangesNoRule) {
    const RawActivity notes{"Zqx Notes", {}, {}, {}, {}};
    const auto id = visit(notes);
    manager->resolveApproval(id, category_id::writing);
    manager->resolveApproval(id, category_id::planning);
    // No bundle id and no domain: one rule, the name.
    EXPECT_EQ(rules(), (std::set<Rule>{{"app_name", "Zqx Notes", category_id::planning}}));
    EXPECT_EQ(db.fetchActivity(id)->categoryID, category_id::planning);

    // A pending session younger than 30 s puts the published count ahead of the store's.
    manager->process({"Zqx", {}, {}, {}, {}});
    mainQueue.drain();
    EXPECT_EQ(manager->pendingApprovalCount.get(), 1);
    EXPECT_EQ(manager->nextPendingApproval(), std::nullopt);
    engine.learnedRules = {{"app_name", "sentinel", 1}};  // would be replaced by a reload

    manager->resolveApproval(424242, category_id::coding);
    EXPECT_EQ(rules().size(), 1u);
    EXPECT_EQ(engine.learnedRules.size(), 1u);
    mainQueue.drain();
    EXPECT_EQ(manager->pendingApprovalCount.get(), 0);
}

}  // namespace
}  // namespace larkspan
