// The tracking road headless, with every seam a fake but the monitor's serial queue and the store.
// MonitorRig: a scripted desktop captured by a monitor; the test thread plays the main thread.
// TrackerRig adds a real store in a temporary folder, the rule engine and the session manager.
#pragma once

#include <algorithm>
#include <memory>
#include <optional>

#include "Classification/CategoryEngine.h"
#include "Data/Database.h"
#include "FakeScriptRunner.h"
#include "FakeWorkspace.h"
#include "ManualClock.h"
#include "ManualMainQueue.h"
#include "ManualTimerHub.h"
#include "Platform/NotificationCenter.h"
#include "Platform/SerialQueue.h"
#include "TempDir.h"
#include "Tracking/ActivityMonitor.h"
#include "Tracking/SessionManager.h"

namespace larkspan::test {

struct MonitorRig {
    ManualClock clock;
    const Date t0 = clock.now();
    ManualMainQueue mainQueue;
    ManualTimerHub timers{clock};
    FakeWorkspace workspace;
    FakeScriptRunner scripts;
    NotificationCenter notifications;
    SerialQueue bg{kMonitorQueueLabel};
    std::shared_ptr<ActivityMonitor> monitor =
        std::make_shared<ActivityMonitor>(workspace, scripts, clock, mainQueue, timers, notifications, bg);

    // Lets the captures queued so far finish, then runs what they posted to the main thread.
    void settle() {
        bg.sync([] {});
        mainQueue.drain();
    }
    // Lets `seconds` pass in steps of at most one second, settling after each.
    void run(double seconds) {
        for (double left = seconds; left > 1e-9; left -= 1) {
            timers.advance(std::min(left, 1.0));
            settle();
        }
    }
    // One capture of the desktop as it is now.
    std::optional<RawActivity> capture() {
        monitor->poll();
        settle();
        return monitor->currentActivity.get();
    }
    void bringToFront(const RunningApplication& app) {
        workspace.activate(app);
        settle();
    }
};

struct TrackerRig : MonitorRig {
    TempDir dir;
    Database db{dir / "tracker.db"};
    CategoryEngine engine;
    std::shared_ptr<SessionManager> manager = SessionManager::create(db, engine, clock, mainQueue, timers);

    std::vector<ActivityRecord> rows() { return db.fetchActivities(0, 4e9); }
};

}  // namespace larkspan::test
