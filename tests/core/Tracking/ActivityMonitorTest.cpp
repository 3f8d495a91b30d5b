#include "Tracking/ActivityMonitor.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "FakeScriptRunner.h"
#include "FakeWorkspace.h"
#include "ManualClock.h"
#include "ManualMainQueue.h"
#include "ManualTimerHub.h"
#include "Platform/SerialQueue.h"

namespace larkspan {
namespace {

using namespace test;

const RunningApplication kTerminal{"org.gnome.Terminal", "Terminal", 10};
const RunningApplication kEditor{"org.gnome.TextEditor", "Text Editor", 11};
const RunningApplication kChrome{"com.google.Chrome", "Google Chrome", 20};
const RunningApplication kCanary{"com.google.Chrome.canary", "Chrome Canary", 21};
const RunningApplication kOpera{"com.operasoftware.Opera", "Opera", 22};

struct ActivityMonitorTest : ::testing::Test {
    FakeWorkspace workspace;
    FakeScriptRunner scripts;
    ManualClock clock;
    ManualMainQueue mainQueue;
    ManualTimerHub timers{clock};
    NotificationCenter notifications;
    SerialQueue bg{kMonitorQueueLabel};
    std::shared_ptr<ActivityMonitor> monitor =
        std::make_shared<ActivityMonitor>(workspace, scripts, clock, mainQueue, timers, notifications, bg);

    std::vector<std::optional<RawActivity>> published;
    std::vector<double> returns;
    std::vector<std::thread::id> publishingThreads;
    Subscription publishedSub = monitor->currentActivity.subscribe([this](const auto& sample) {
        published.push_back(sample);
        publishingThreads.push_back(std::this_thread::get_id());
    });
    Subscription returnSub =
        notifications.observe(userReturnedFromIdle, [this](const NotificationPayload& payload) {
            returns.push_back(payload.at("idleSeconds"));
            // The active sample is already in place when the return is reported.
            EXPECT_FALSE(monitor->currentActivity.get()->isIdle);
        });

    ActivityMonitorTest() { published.clear(); }

    // Lets queued captures finish, then runs what they posted to the main thread.
    void settle() {
        bg.sync([] {});
        mainQueue.drain();
    }
    // One capture of the desktop as it is now.
    std::optional<RawActivity> capture() {
        monitor->poll();
        settle();
        return monitor->currentActivity.get();
    }
};

TEST_F(ActivityMonitorTest, StartPollsAtOnceEveryFourSecondsAndOnActivationUntilStopped) {
    workspace.setFrontmost(kTerminal);
    workspace.setTitle(kTerminal.pid, "~/src");
    monitor->start();
    settle();
    ASSERT_EQ(published.size(), 1u);
    EXPECT_EQ(published[0]->appName, "Terminal");
    EXPECT_EQ(published[0]->bundleID, "org.gnome.Terminal");
    EXPECT_EQ(published[0]->windowTitle, "~/src");

    timers.advance(3.9);
    settle();
    EXPECT_EQ(published.size(), 1u);
    timers.advance(0.1);
    settle();
    EXPECT_EQ(published.size(), 2u);  // an unchanged sample is assigned again

    workspace.activate(kEditor);
    settle();
    ASSERT_EQ(published.size(), 3u);
    EXPECT_EQ(published[2]->appName, "Text Editor");
    EXPECT_EQ(published[2]->windowTitle, std::nullopt);  // unreadable title stays absent

    monitor->stop();
    EXPECT_FALSE(workspace.hasActivationHandler());
    EXPECT_EQ(timers.activeCount(), 0u);
    timers.advance(20);
    settle();
    EXPECT_EQ(published.size(), 3u);
    // Every assignment happened on this, the main, thread.
    for (auto id : publishingThreads)
        EXPECT_EQ(id, std::this_thread::get_id());
}

TEST_F(ActivityMonitorTest, IdlenessStartsStrictlyAboveTheThresholdOfTheFrontApplication) {
    workspace.setFrontmost(kTerminal);
    workspace.setIdleSeconds(120.0);
    EXPECT_FALSE(capture()->isIdle);
    workspace.setIdleSeconds(120.001);
    const auto away = capture();
    EXPECT_TRUE(away->isIdle);
    EXPECT_EQ(away->appName, "Away");
    EXPECT_EQ(away->windowTitle, "Away / Break");
    EXPECT_EQ(away->bundleID, std::nullopt);
    EXPECT_EQ(away->idleSeconds, 120.001);

    // The same silence in a listed browser is no absence until 300 s; Opera is a browser but unlisted.
    scripts.answerAlways("https://example.com/|||Example");
    workspace.setFrontmost(kCanary);
    EXPECT_FALSE(capture()->isIdle);
    workspace.setIdleSeconds(300.5);
    EXPECT_TRUE(capture()->isIdle);
    workspace.setIdleSeconds(200);
    workspace.setFrontmost(kOpera);
    EXPECT_TRUE(capture()->isIdle);
    // No front application at all: the default threshold decides.
    workspace.setFrontmost(std::nullopt);
    EXPECT_TRUE(capture()->isIdle);
}

TEST_F(ActivityMonitorTest, TheFirstActiveCaptureAfterIdlenessReportsTheLastIdleSeconds) {
    workspace.setFrontmost(kTerminal);
    capture();
    workspace.setIdleSeconds(121);
    capture();
    workspace.setIdleSeconds(7'200);
    capture();
    EXPECT_TRUE(returns.empty());

    workspace.setIdleSeconds(0.5);
    EXPECT_FALSE(capture()->isIdle);
    EXPECT_EQ(returns, std::vector<double>{7'200});
    capture();
    EXPECT_EQ(returns.size(), 1u);  // only the first

    // Idle, then a capture with nothing in front, then active: the return is lost.
    workspace.setIdleSeconds(500);
    capture();
    workspace.setIdleSeconds(1);
    workspace.setFrontmost(std::nullopt);
    const auto before = published.size();
    capture();
    EXPECT_EQ(published.size(), before);  // nothing is published without a front application
    workspace.setFrontmost(kTerminal);
    capture();
    EXPECT_EQ(returns.size(), 1u);
}

TEST_F(ActivityMonitorTest, ABrowserSampleCarriesItsTab) {
    workspace.setFrontmost(kChrome);
    workspace.setTitle(kChrome.pid, "Window title");
    scripts.answerAlways("https://www.rust-lang.org/learn|||Learn Rust");
    auto sample = capture();
    EXPECT_EQ(sample->url, "https://www.rust-lang.org/learn");
    EXPECT_EQ(sample->urlDomain, "rust-lang.org");
    EXPECT_EQ(sample->windowTitle, "Learn Rust");

    // An empty tab title keeps the window's title.
    clock.advance(5);
    scripts.answerAlways("https://example.org/|||");
    sample = capture();
    EXPECT_EQ(sample->urlDomain, "example.org");
    EXPECT_EQ(sample->windowTitle, "Window title");

    // A failed tab read: a browser sample without an address.
    clock.advance(5);
    scripts.answerAlways(std::nullopt);
    sample = capture();
    EXPECT_EQ(sample->url, std::nullopt);
    EXPECT_EQ(sample->urlDomain, std::nullopt);
    EXPECT_EQ(sample->windowTitle, "Window title");

    // A non-browser never runs a script.
    const int runs = scripts.runCount();
    workspace.setFrontmost(kTerminal);
    capture();
    EXPECT_EQ(scripts.runCount(), runs);
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
