#include "Tracking/ActivityMonitor.h"

#include <gtest/gtest.h>

#include <thread>
#include <tuple>
#include <vector>

#include "TrackerRig.h"

namespace larkspan {
namespace {

const RunningApplication kTerminal{"org.gnome.Terminal", "Terminal", 10};
const RunningApplication kEditor{"org.gnome.TextEditor", "Text Editor", 11};
const RunningApplication kChrome{"com.google.Chrome", "Google Chrome", 20};

struct ActivityMonitorTest : ::testing::Test, test::MonitorRig {
    std::vector<std::optional<RawActivity>> published;
    std::vector<double> returns;
    const std::thread::id mainThread = std::this_thread::get_id();
    Subscription publishedSub = monitor->currentActivity.subscribe([this](const auto& sample) {
        published.push_back(sample);
        EXPECT_EQ(std::this_thread::get_id(), mainThread);  // every assignment on the main thread
    });
    Subscription returnSub =
        notifications.observe(userReturnedFromIdle, [this](const NotificationPayload& payload) {
            returns.push_back(payload.at("idleSeconds"));
            // The active sample is already in place when the return is reported.
            EXPECT_FALSE(monitor->currentActivity.get()->isIdle);
        });

    ActivityMonitorTest() { published.clear(); }
};

TEST_F(ActivityMonitorTest, StartPollsAtOnceEveryFourSecondsAndOnActivationUntilStopped) {
    workspace.setFrontmost(kTerminal);
    workspace.setTitle(kTerminal.pid, "~/src");
    monitor->start();
    settle();
    ASSERT_EQ(published.size(), 1u);
    EXPECT_EQ(*published[0],
              (RawActivity{"Terminal", "org.gnome.Terminal", "~/src", std::nullopt, std::nullopt}));

    run(3.9);
    EXPECT_EQ(published.size(), 1u);
    run(0.1);
    EXPECT_EQ(published.size(), 2u);  // an unchanged sample is assigned again

    bringToFront(kEditor);
}

TEST_F(ActivityMonitorTest, IdlenessStartsStrictlyAboveTheThresholdOfTheFrontApplication) {
    // A listed browser waits 300 s.
    const std::tuple<RunningApplication, double, bool> cases[] = {{kTerminal, 120.0, false},
                                                                  {kTerminal, 120.001, true},
                                                                  {kChrome, 300.0, false},
                                                                  {kChrome, 300.5, true}};
    scripts.answerAlways("https://example.com/|||Example");
    for (const auto& [front, idleSeconds, idle] : cases) {
        workspace.setFrontmost(front);
        workspace.setIdleSeconds(idleSeconds);
        EXPECT_EQ(capture()->isIdle, idle) << *front.bundleID << " " << idleSeconds;
    }
    // The away sample names no application, whichever is in front.
    workspace.setFrontmost(kTerminal);
    workspace.setIdleSeconds(150);
    const auto away = capture();
    EXPECT_EQ(away, (RawActivity{"Away", std::nullopt, "Away / Break", std::nullopt, std::nullopt, true}));
    EXPECT_EQ(away->idleSeconds, 150);
}

TEST_F(ActivityMonitorTest, TheFirstActiveCaptureAfterIdlenessReportsTheLastIdleSeconds) {
    workspace.setFrontmost(kTerminal);
    for (double idle : {0.0, 121.0, 7'200.0}) {
        workspace.setIdleSeconds(idle);
        capture();
    }
    EXPECT_TRUE(returns.empty());

    workspace.setIdleSeconds(0.5);
    EXPECT_FALSE(capture()->isIdle);
    capture();
    EXPECT_EQ(returns, std::vector<double>{7'200});  // only the first
}

TEST_F(ActivityMonitorTest, AHangingScriptHoldsUpOnlyTheMonitorQueue) {
    workspace.setFrontmost(kChrome);
    scripts.answerAlways("https://example.com/|||Example");
    scripts.hold();
    monitor->start();
    scripts.waitUntilBlocked();

    // The main thread goes on: ticks, switches and its own queue all run while the script hangs.
    workspace.activate(kTerminal);
    timers.advance(4);
    workspace.activate(kEditor);
    mainQueue.drain();
    EXPECT_EQ(scripts.blockedRuns(), 1);
    EXPECT_TRUE(published.empty());

    scripts.release();
    settle();
    // One capture per poll, none merged; the queued ones look at the desktop when they run.
    ASSERT_EQ(published.size(), 4u);
    EXPECT_EQ(published[0]->urlDomain, "example.com");
    for (int i = 1; i < 4; ++i)
        EXPECT_EQ(published[i]->appName, "Text Editor");
}

TEST_F(ActivityMonitorTest, WorkQueuedForAGoneMonitorDoesNothing) {
    workspace.setFrontmost(kChrome);
    scripts.answerAlways("https://example.com/|||Example");
    scripts.hold();
    monitor->poll();
    scripts.waitUntilBlocked();
    monitor->poll();
    std::weak_ptr<ActivityMonitor> weak = monitor;
    monitor.reset();
    EXPECT_FALSE(weak.expired());  // the running capture keeps it alive
    const int reads = workspace.frontmostReads();

    scripts.release();
    bg.sync([] {});
    EXPECT_TRUE(weak.expired());
    EXPECT_EQ(workspace.frontmostReads(), reads);  // the queued capture found no monitor
    EXPECT_EQ(mainQueue.drain(), 1);               // the first capture's post finds none either
    EXPECT_TRUE(published.empty());
}

}  // namespace
}  // namespace larkspan
