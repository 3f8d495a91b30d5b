#include "Tracking/SessionManager.h"

#include <gtest/gtest.h>

#include "Classification/CategorySettings.h"
#include "StatementTrace.h"
#include "TrackerRig.h"

namespace larkspan {
namespace {

using namespace test;

RawActivity away(double idleSeconds) {
    return {kAwayAppName, {}, kAwayTitle, {}, {}, true, idleSeconds};
}

const RawActivity kKitty{"kitty", "net.kovidgoyal.kitty", "~/src", {}, {}};
const RawActivity kMystery{"Zqx", "org.example.Zqx", {}, {}, {}};  // Other at 0.3: asks

struct SessionManagerTest : ::testing::Test, TrackerRig {
    std::vector<std::optional<ActivityRecord>> sessions;
    Subscription sessionSub =
        manager->currentSession.subscribe([this](const auto& s) { sessions.push_back(s); });

    SessionManagerTest() { sessions.clear(); }

    // Lets `seconds` pass (heartbeats fire), then hands `sample` over and runs what it posted;
    // returns how much that was.
    int after(double seconds, const RawActivity& sample) {
        timers.advance(seconds);
        manager->process(sample);
        return mainQueue.drain();
    }
};

TEST_F(SessionManagerTest, EqualSamplesKeepOneRowWhoseEndMovesOnlyWithHeartbeats) {
    after(0, kKitty);
    ASSERT_EQ(rows().size(), 1u);
    const ActivityRecord first = rows()[0];
    EXPECT_EQ(first.categoryID, category_id::terminal);
    EXPECT_TRUE(first.isApproved);
    EXPECT_EQ(first.endTime, std::nullopt);  // younger than the first heartbeat
    ASSERT_EQ(sessions.size(), 1u);
    EXPECT_EQ(sessions[0], first);  // published with the id it was stored under

    // 99 more samples, one a second, with other titles and addresses: no new row, no new category,
    // nothing published, and no statement but the heartbeat's.
    StatementTrace trace(db);
    for (int i = 1; i < 100; ++i) {
        RawActivity same = kKitty;
        same.windowTitle = std::string(static_cast<std::size_t>(i) * 1000, 'x');
        same.url = "file:///" + std::to_string(i);
        trace.take();
        EXPECT_EQ(after(1, same), 0) << i;
        EXPECT_EQ(trace.take().size(), i % 30 == 0 ? 1u : 0u) << i;
        const auto stored = rows();
        ASSERT_EQ(stored.size(), 1u);
        const int beats = i / 30;
        EXPECT_EQ(stored[0].endTime, beats ? std::optional(t0 + 30.0 * beats) : std::nullopt) << i;
        EXPECT_EQ(stored[0].durationSeconds, 30 * beats);
        EXPECT_EQ(stored[0].windowTitle, "~/src");  // the first sample's texts stay
    }
    EXPECT_EQ(engine.calls(), 1);
    EXPECT_EQ(sessions.size(), 1u);  // heartbeats do not touch the published session

    // A change costs a write to close, the pending count and a write to open: the catalogue is not
    // read per sample.
    trace.take();
    after(6, kMystery);
    EXPECT_EQ(trace.take().size(), 3u);
    EXPECT_EQ(engine.calls(), 2);
}

TEST_F(SessionManagerTest, SessionsUnderFiveWholeSecondsAreDeletedAtClosing) {
    // The first sample closes nothing; 4.99 s truncates to 4 and is dropped.
    after(0, kKitty);
    after(4.99, kMystery);
    EXPECT_EQ(apps(), std::vector<std::string>{"Zqx"});
    // Exactly 5 s stays, with its end and duration.
    after(5.0, away(130));
    ASSERT_EQ(rows().size(), 2u);
    EXPECT_EQ(rows()[0].durationSeconds, 5);
    EXPECT_EQ(rows()[0].endTime, t0 + 4.99 + 5.0);
    // An away span under 5 s goes like any other.
    after(3, kKitty);
    EXPECT_EQ(apps(), (std::vector<std::string>{"Zqx", "kitty"}));
    // A clock set back puts the start in the future: a negative duration, under the minimum.
    clock.advance(-3600);
    after(0, kMystery);
    EXPECT_EQ(apps(), (std::vector<std::string>{"Zqx", "Zqx"}));
}

TEST_F(SessionManagerTest, IdleSamplesAreOneAwaySpanWithoutClassification) {
    after(0, away(121));
    after(4, away(125));  // equal, however long the absence
    after(400, away(4000));
    EXPECT_EQ(apps(), std::vector<std::string>{kAwayAppName});
    EXPECT_EQ(rows()[0].durationSeconds, 390);
    EXPECT_EQ(rows()[0].categoryID, category_id::awayBreak);
    EXPECT_EQ(engine.calls(), 0);
}

TEST_F(SessionManagerTest, PublishedValuesArriveThroughTheMainQueueSessionBeforeCount) {
    mainQueue.drain();  // the count read at creation
    std::vector<std::string> order;
    auto countSub = manager->pendingApprovalCount.subscribe([&](std::int64_t count) {
        order.push_back("count " + std::to_string(count));
        if (count > 0) {  // the session it belongs to is already published, with its id
            ASSERT_TRUE(manager->currentSession.get());
            EXPECT_GT(manager->currentSession.get()->id, 0);
        }
    });
    auto orderSub = manager->currentSession.subscribe(
        [&](const auto& s) { order.push_back(s ? "session " + s->appName : "none"); });
    order.clear();

    manager->process(kMystery);
    // Nothing is assigned inline, even on the main thread.
    EXPECT_TRUE(order.empty());
    EXPECT_EQ(manager->currentSession.get(), std::nullopt);
    EXPECT_EQ(mainQueue.pendingCount(), 2u);
    mainQueue.drain();
    EXPECT_EQ(order, (std::vector<std::string>{"session Zqx", "count 1"}));
    EXPECT_TRUE(manager->currentSession.get()->needsApproval);
}

TEST_F(SessionManagerTest, ARowRefusedFromStartToEndIsStoredWholeAtItsClose) {
    std::vector<std::string> failures;
    manager->onWriteFailure = [&failures](const std::string& message) { failures.push_back(message); };
    db.exec("PRAGMA query_only=1");
    after(0, kMystery);
    db.exec("PRAGMA query_only=0");
    after(12, kKitty);
    ASSERT_EQ(failures.size(), 1u);
    EXPECT_EQ(failures[0], "attempt to write a readonly database");
    EXPECT_EQ(apps(), (std::vector<std::string>{"Zqx", "kitty"}));
    EXPECT_EQ(rows()[0].startTime, t0);
    EXPECT_EQ(rows()[0].durationSeconds, 12);

    // A refused insert is retried at the next heartbeat, from the session's start.
    db.exec("CREATE TRIGGER refuse BEFORE INSERT ON activities BEGIN SELECT RAISE(FAIL, 'disk'); END;");
    after(10, kMystery);
    db.exec("DROP TRIGGER refuse;");
    after(30, kMystery);
    ASSERT_EQ(rows().size(), 3u);
    EXPECT_EQ(rows()[2].startTime, t0 + 22);
}

TEST_F(SessionManagerTest, CategoryGoneFromTheCatalogueStoresTheSessionUnderOther) {
    db.deleteCategory(category_id::terminal);
    db.deleteCategory(category_id::awayBreak);
    manager->categoriesChanged();
    after(0, kKitty);
    after(10, away(200));
    EXPECT_EQ(apps(), (std::vector<std::string>{"kitty", kAwayAppName}));
    for (const auto& row : rows())
        EXPECT_EQ(row.categoryID, category_id::other);

    // A category added later is used once the catalogue is read again.
    db.insertCategory(newCategory("Deep Work", "x", Productivity::productive));
    manager->categoriesChanged();
    const auto added = db.fetchCategories().back().id;
    db.saveLearnedRule("app_name", "Zqx", added);
    manager->refreshLearnedRules();
    after(10, kMystery);
    EXPECT_EQ(rows().back().categoryID, added);
}

}  // namespace
}  // namespace larkspan
