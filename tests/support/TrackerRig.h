// The tracker headless, every seam a fake; the test thread plays the main thread.
// MonitorRig: a scripted desktop captured by a monitor on its real serial queue.
// TrackerRig adds a real store in a temporary folder, the rule engine (counting its calls), the session
// manager and the Pomodoro timer over it; the monitor stays idle until a test starts it.
#pragma once

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>

#include "CountingCategoryEngine.h"
#include "Data/Database.h"
#include "FakeScriptRunner.h"
#include "FakeWorkspace.h"
#include "Focus/PomodoroTimer.h"
#include "ManualClock.h"
#include "ManualMainQueue.h"
#include "ManualTimerHub.h"
#include "MemoryKeyValueStore.h"
#include "Platform/NotificationCenter.h"
#include "Platform/SerialQueue.h"
#include "RecordingSoundPlayer.h"
#include "TempDir.h"
#include "Tracking/ActivityMonitor.h"
#include "Tracking/SessionManager.h"

namespace larkspan::test {

struct MonitorRig {
    explicit MonitorRig(Date start = ManualClock().now()) : clock(start) {}

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

    // Lets the captures queued so far finish, then runs what they (and what they posted) posted.
    void settle() {
        do {
            bg.sync([] {});
        } while (mainQueue.drain() > 0);
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
    using MonitorRig::MonitorRig;

    TempDir dir;
    Database db{dir / "tracker.db"};
    CountingCategoryEngine engine;
    MemoryKeyValueStore defaults;
    RecordingSoundPlayer sounds;
    std::shared_ptr<SessionManager> manager = SessionManager::create(db, engine, clock, mainQueue, timers);
    PomodoroTimer pomodoro{clock, defaults, sounds, timers};

    std::vector<ActivityRecord> rows() { return db.fetchActivities(0, 4e9); }
    // The stored rows' application names, in start order.
    std::vector<std::string> apps() {
        std::vector<std::string> names;
        std::ranges::transform(rows(), std::back_inserter(names), &ActivityRecord::appName);
        return names;
    }
};

}  // namespace larkspan::test
