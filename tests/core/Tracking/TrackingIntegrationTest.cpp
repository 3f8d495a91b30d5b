// The whole road of a sample, headless: a scripted desktop is captured by the monitor on its own
// queue, handed through the main queue to the session manager and stored in a real database file.
// The test thread plays the main thread; the monitor and the store run their real serial queues.
#include <gtest/gtest.h>

#include <thread>

#include "SqliteFile.h"
#include "TrackerRig.h"

namespace larkspan {
namespace {

const RunningApplication kKitty{"net.kovidgoyal.kitty", "kitty", 10};  // Terminal, sure
const RunningApplication kChrome{"com.google.Chrome", "Google Chrome", 20};
const RunningApplication kZqx{"org.example.Zqx", "Zqx", 30};  // unknown: asks

struct TrackingIntegrationTest : ::testing::Test, test::TrackerRig {
    test::SqliteFile file{dir / "tracker.db"};
    const std::thread::id mainThread = std::this_thread::get_id();
    int offMainAssignments = 0;
    std::vector<double> returns;
    std::vector<Subscription> subscriptions;

    void SetUp() override {
        // The wiring of the shell: each sample goes through the main queue to the manager.
        subscriptions.push_back(monitor->currentActivity.subscribe([this](const auto& sample) {
            countThread();
            if (!sample)
                return;
            mainQueue.post([this, s = *sample] { manager->process(s); });
        }));
        subscriptions.push_back(manager->currentSession.subscribe([this](const auto&) { countThread(); }));
        subscriptions.push_back(manager->pendingApprovalCount.subscribe([this](auto) { countThread(); }));
        subscriptions.push_back(notifications.observe(userReturnedFromIdle, [this](const auto& payload) {
            returns.push_back(payload.at(userReturnedFromIdleSecondsKey));
        }));
        scripts.answerAlways("https://docs.example.org/a|||Docs");
        workspace.setRunning({kKitty, kChrome, kZqx});
    }
    void TearDown() override { EXPECT_EQ(offMainAssignments, 0); }

    void countThread() {
        if (std::this_thread::get_id() != mainThread)
            ++offMainAssignments;
    }
};

TEST_F(TrackingIntegrationTest, SwitchesAbsenceAndAnswersReachTheStore) {
    workspace.setFrontmost(kKitty);
    monitor->start();
    run(10);
    // A browser page of 4.99 s leaves no row; an application of exactly 5 s does.
    bringToFront(kChrome);
    EXPECT_EQ(rows().back().urlDomain, "docs.example.org");
    EXPECT_EQ(manager->pendingApprovalCount.get(), 1);  // a browser on an unknown site asks
    run(4.99);
    bringToFront(kZqx);
    run(5);
    bringToFront(kKitty);
    run(8);
    auto stored = rows();
    ASSERT_EQ(stored.size(), 3u);
    EXPECT_EQ(stored[1].appName, "Zqx");
    EXPECT_EQ(stored[1].durationSeconds, 5);
    // Each close brought the published count back to the store's: neither the deleted page nor the
    // 5-second Zqx row is pending there.
    EXPECT_EQ(manager->pendingApprovalCount.get(), 0);
    EXPECT_EQ(db.pendingApprovalCount(), 0);

    // Away after 120 silent seconds in a terminal: one away row however long the silence grows.
    workspace.setIdleSeconds(121);
    run(4);
    workspace.setIdleSeconds(125);
    run(4);
    workspace.setIdleSeconds(1500);
    run(4);
    EXPECT_TRUE(returns.empty());
    workspace.setIdleSeconds(0.4);
    run(4);
    stored = rows();
    ASSERT_EQ(stored.size(), 5u);
    EXPECT_TRUE(stored[3].isIdle());
    EXPECT_EQ(stored[3].categoryID, category_id::awayBreak);
    EXPECT_EQ(stored[3].durationSeconds, 12);
    EXPECT_EQ(stored[4].appName, "kitty");
    // The return carries the length of the absence as last seen.
    EXPECT_EQ(returns, std::vector<double>{1500});

    // The answer teaches the engine; the next visit of that site does not ask.
    manager->resolveApproval(stored[1].id, category_id::planning);
    settle();
    EXPECT_EQ(manager->pendingApprovalCount.get(), 0);
    bringToFront(kZqx);
    EXPECT_EQ(rows().back().categoryID, category_id::planning);
    EXPECT_FALSE(rows().back().needsApproval);
}

TEST_F(TrackingIntegrationTest, RefusedInsertIsRetriedAtTheHeartbeat) {
    workspace.setFrontmost(kKitty);
    monitor->start();
    run(8);
    file.exec("CREATE TRIGGER refuse BEFORE INSERT ON activities BEGIN SELECT RAISE(FAIL, 'disk'); END;");
    bringToFront(kZqx);
    run(40);
    // The terminal's row was closed at the switch; the refused row has not been published.
    ASSERT_EQ(rows().size(), 1u);
    EXPECT_EQ(rows()[0].endTime, t0 + 8);
    EXPECT_EQ(manager->currentSession.get()->appName, "kitty");
    // Once the store takes rows again, the next heartbeat stores the session from its start.
    file.exec("DROP TRIGGER refuse;");
    run(30);
    ASSERT_EQ(rows().size(), 2u);
    EXPECT_EQ(rows()[1].startTime, t0 + 8);
    EXPECT_EQ(manager->currentSession.get()->id, rows().back().id);
}

TEST_F(TrackingIntegrationTest, TextsOfAnySizeAndEncodingReachTheStoreUnchanged) {
    const std::string title =
        std::string(100'000, 'w') + "\xFF\xC3(\xED\xA0\x80 \xF0\x9F\x8D\x85 \xD7\xA9\xD7\x9C";
    workspace.setFrontmost(kKitty);
    workspace.setTitle(kKitty.pid, title);
    monitor->start();
    settle();
    const std::string url =
        "https://\xD9\x85\xD8\xAB\xD8\xA7\xD9\x84.example/\xFE?q=" + std::string(50'000, 'q');
    scripts.answerAlways(url + "|||" + title);
    run(5);
    bringToFront(kChrome);
    EXPECT_EQ(file.text("SELECT window_title FROM activities WHERE app_name='kitty'"), title);
    EXPECT_EQ(file.text("SELECT url FROM activities WHERE app_name='Google Chrome'"), url);
    EXPECT_EQ(file.text("SELECT window_title FROM activities WHERE app_name='Google Chrome'"), title);
}

}  // namespace
}  // namespace larkspan
