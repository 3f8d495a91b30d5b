// Looks at the desktop every 4 seconds and whenever another application comes to the front, and
// publishes one RawActivity per look.
//
// Threads: the timer tick, poll(), the activation handler and every assignment of currentActivity
// run on the main thread. Each capture (idle check, frontmost application, window title, browser
// tab) runs on the serial monitor queue, in poll order, and hands its sample back through the main
// queue; the queue is the lock for wasIdle and the browser caches. A browser script that hangs holds
// up only that queue: later captures wait behind it and then run in order.
//
// Posted and queued work holds the monitor weakly, so the monitor must be owned by a shared_ptr.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "Platform/Clock.h"
#include "Platform/DispatchQueue.h"
#include "Platform/MainQueue.h"
#include "Platform/NotificationCenter.h"
#include "Platform/Published.h"
#include "Platform/RepeatingTimer.h"
#include "Platform/ScriptRunner.h"
#include "Platform/Workspace.h"
#include "Tracking/ActivityRecord.h"
#include "Tracking/BrowserTracker.h"
#include "Tracking/IdleMonitor.h"

namespace larkspan {

// Posted on the NotificationCenter after the first active capture that follows idleness, with the
// length of the absence in seconds under userReturnedFromIdleSecondsKey.
inline constexpr const char* userReturnedFromIdle = "com.larkspan.returnedFromIdle";
inline constexpr const char* userReturnedFromIdleSecondsKey = "idleSeconds";

inline constexpr const char* kMonitorQueueLabel = "com.larkspan.monitor";
inline constexpr const char* kUnknownAppName = "Unknown";

class ActivityMonitor : public std::enable_shared_from_this<ActivityMonitor> {
public:
    // Every seam must outlive the monitor. `bg` is the serial queue labelled kMonitorQueueLabel on
    // which captures run; the tab cache reads `clock` there.
    ActivityMonitor(Workspace& workspace, ScriptRunner& scripts, const Clock& clock, MainQueue& mainQueue,
                    RepeatingTimer& timers, NotificationCenter& notifications, DispatchQueue& bg);

    ActivityMonitor(const ActivityMonitor&) = delete;
    ActivityMonitor& operator=(const ActivityMonitor&) = delete;

    // Main thread, once: installs the activation handler, schedules the 4-second poll and polls at
    // once.
    void start();
    // Main thread: removes the activation handler and cancels the poll. Captures already queued
    // still publish.
    void stop();
    // Queues one capture. Captures are never merged or skipped.
    void poll();

    // The latest sample; main thread only. Every capture assigns, also an unchanged value.
    Published<std::optional<RawActivity>> currentActivity;

    static constexpr double pollInterval = 4.0;  // seconds

private:
    void appDidActivate();
    // Monitor queue only.
    void captureCurrentState();
    // Main thread: publishes an active sample, then reports a return from idleness if `returning`.
    void publishActive(RawActivity sample, bool returning);

    Workspace& workspace_;
    MainQueue& mainQueue_;
    RepeatingTimer& timers_;
    NotificationCenter& notifications_;
    DispatchQueue& bg_;

    BrowserTracker browserTracker_;  // monitor queue only
    IdleMonitor idleMonitor_;
    std::unique_ptr<TimerHandle> urlPollTimer_;  // main thread only
    bool wasIdle_ = false;                       // monitor queue only
};

}  // namespace larkspan
