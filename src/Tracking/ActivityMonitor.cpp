#include "Tracking/ActivityMonitor.h"

#include <utility>

namespace larkspan {

ActivityMonitor::ActivityMonitor(Workspace& workspace, ScriptRunner& scripts, const Clock& clock,
                                 MainQueue& mainQueue, RepeatingTimer& timers,
                                 NotificationCenter& notifications, DispatchQueue& bg)
    : workspace_(workspace),
      mainQueue_(mainQueue),
      timers_(timers),
      notifications_(notifications),
      bg_(bg),
      browserTracker_(scripts, workspace, clock),
      idleMonitor_(workspace) {}

void ActivityMonitor::start() {
    std::weak_ptr<ActivityMonitor> weak = weak_from_this();
    workspace_.setApplicationActivatedHandler([weak] {
        if (auto self = weak.lock())
            self->appDidActivate();
    });
    urlPollTimer_ = timers_.schedule(pollInterval, [weak] {
        if (auto self = weak.lock())
            self->poll();
    });
    poll();
}

void ActivityMonitor::stop() {
    workspace_.setApplicationActivatedHandler({});
    urlPollTimer_.reset();
}

void ActivityMonitor::poll() {
    std::weak_ptr<ActivityMonitor> weak = weak_from_this();
    bg_.async([weak] {
        if (auto self = weak.lock())
            self->captureCurrentState();
    });
}

void ActivityMonitor::appDidActivate() {
    poll();
}

void ActivityMonitor::captureCurrentState() {
    const double idle = idleMonitor_.secondsSinceLastInput();
    std::optional<std::string> frontBundleID;
    if (auto front = workspace_.frontmostApplication()) {
        frontBundleID = front->bundleID;
    }
    std::weak_ptr<ActivityMonitor> weak = weak_from_this();

    if (idle > IdleMonitor::idleThreshold(frontBundleID)) {
        RawActivity sample;
        sample.appName = kAwayAppName;
        sample.windowTitle = kAwayTitle;
        sample.isIdle = true;
        sample.idleSeconds = idle;
        wasIdle_ = true;
        mainQueue_.post([weak, sample = std::move(sample)] {
            if (auto self = weak.lock())
                self->currentActivity.set(sample);
        });
        return;
    }

    const bool returning = std::exchange(wasIdle_, false);
    const auto front = workspace_.frontmostApplication();
    if (!front) {
        return;
    }
    RawActivity sample;
    sample.appName = front->localizedName.value_or(kUnknownAppName);
    sample.bundleID = front->bundleID;
    sample.windowTitle = workspace_.focusedWindowTitle(front->pid);
    if (sample.bundleID && BrowserTracker::isBrowser(*sample.bundleID)) {
        if (auto tab = browserTracker_.getActiveTab(*sample.bundleID)) {
            sample.url = tab->url;
            sample.urlDomain = tab->domain;
            if (!tab->title.empty()) {
                sample.windowTitle = tab->title;
            }
        }
    }
    mainQueue_.post([weak, sample = std::move(sample), returning] {
        if (auto self = weak.lock())
            self->publishActive(sample, returning);
    });
}

void ActivityMonitor::publishActive(RawActivity sample, bool returning) {
    const auto previous = currentActivity.get();
    currentActivity.set(std::move(sample));
    if (returning && previous && previous->idleSeconds > 0) {
        notifications_.post(userReturnedFromIdle, {{userReturnedFromIdleSecondsKey, previous->idleSeconds}});
    }
}

}  // namespace larkspan
