// The one object that owns and wires everything: the store, the rule engine, the activity monitor,
// the session manager, the Pomodoro timer and the tray's controller. It also decides when a floating
// prompt may interrupt the user: one prompt, approval or return from idleness, in ten minutes.
//
// Threads: main thread only. Callbacks it hands out hold it weakly, so it must be owned by a
// shared_ptr and launched after construction.
#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

#include "App/AppPresenter.h"
#include "App/TrayMenu.h"
#include "Classification/CategoryEngine.h"
#include "Data/Database.h"
#include "Focus/PomodoroTimer.h"
#include "Platform/Clock.h"
#include "Platform/DispatchQueue.h"
#include "Platform/KeyValueStore.h"
#include "Platform/MainQueue.h"
#include "Platform/NotificationCenter.h"
#include "Platform/Notifier.h"
#include "Platform/RepeatingTimer.h"
#include "Platform/ScriptRunner.h"
#include "Platform/SoundPlayer.h"
#include "Platform/Subscription.h"
#include "Platform/Workspace.h"
#include "Tracking/ActivityMonitor.h"
#include "Tracking/SessionManager.h"

namespace larkspan {

// The platform the application runs on. Every member must outlive the delegate; `monitorQueue`
// is the serial queue labelled kMonitorQueueLabel.
struct AppEnvironment {
    const Clock& clock;
    MainQueue& mainQueue;
    RepeatingTimer& timers;
    KeyValueStore& defaults;
    SoundPlayer& sounds;
    Notifier& notifier;
    NotificationCenter& notifications;
    Workspace& workspace;
    ScriptRunner& scripts;
    DispatchQueue& monitorQueue;
    AppPresenter& presenter;
};

inline constexpr const char* kLastAccessibilityPromptDateKey = "lastAccessibilityPromptDate";

class AppDelegate : public std::enable_shared_from_this<AppDelegate> {
public:
    // Makes the engine and the monitor; nothing runs until start.
    AppDelegate(Database& database, const AppEnvironment& environment);
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    // A tray application needs no activation policy and freedesktop notifications no authorisation,
    // so launching is all there is to do.
    void start();
    // Builds and starts everything, once.
    void launchApp();
    // Stops sampling and closes the open session with its true end, before the process ends.
    void stop();

    void openDashboard();

    // Prompt arbitration.
    bool canShowPopup() const;
    void markPopupShown();
    void maybeShowApprovalPopup();
    void handleReturnFromIdle(const NotificationPayload& userInfo);
    void showApprovalPopup(const ActivityRecord& record);
    void showReturnFromIdlePopup(double idleDuration);

    SessionManager* sessionManager() const { return sessionManager_.get(); }
    PomodoroTimer* pomodoroTimer() const { return pomodoroTimer_.get(); }
    TrayMenu* trayMenu() const { return trayMenu_.get(); }
    ActivityMonitor& activityMonitor() const { return *activityMonitor_; }

    static constexpr double minPopupInterval = 600.0;
    static constexpr double accessibilityPromptInterval = 604800.0;  // 7 days
    static constexpr double writeFailureReportInterval = 3600.0;     // seconds

private:
    void startTracking();
    void requestAccessibilityPermission();
    void onSessionComplete(PomodoroMode mode, std::optional<std::int64_t> taskID);
    void sendPomoNotification(PomodoroMode mode);
    // On standard error and as a banner, at most once per writeFailureReportInterval.
    void reportWriteFailure(const std::string& message);

    Database& database_;
    AppEnvironment env_;
    CategoryEngine categoryEngine_;
    std::shared_ptr<ActivityMonitor> activityMonitor_;
    std::shared_ptr<SessionManager> sessionManager_;
    std::unique_ptr<PomodoroTimer> pomodoroTimer_;
    std::unique_ptr<TrayMenu> trayMenu_;
    std::vector<Subscription> cancellables_;
    Date lastPopupTime_ = -std::numeric_limits<double>::infinity();  // the distant past
    std::optional<Date> lastWriteFailureReport_;
};

}  // namespace larkspan
