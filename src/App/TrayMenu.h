// The tray's logic: keeps the status title current with the session, the pending count and the
// Pomodoro timer, and says what the context menu holds. The shell draws both and reports clicks.
//
// Threads: main thread only; the subscriptions are fed by values assigned on the main thread.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "App/AppPresenter.h"
#include "Data/Database.h"
#include "Focus/PomodoroTimer.h"
#include "Platform/MainQueue.h"
#include "Platform/Subscription.h"
#include "Tracking/SessionManager.h"

namespace larkspan {

struct MenuItem {
    enum class Action { openDashboard, quit, separator };
    // A tray menu has no keyboard shortcuts: the desktop opens it with the pointer, and no key
    // reaches it while it is closed, so entries carry none.
    std::string title;  // empty for the separator
    Action action = Action::separator;
    bool operator==(const MenuItem&) const = default;
};

class TrayMenu {
public:
    // Draws "⏱ Starting…" at once, then subscribes to the four values that change the title.
    TrayMenu(SessionManager& sessionManager, Database& database, PomodoroTimer& pomodoroTimer,
             AppPresenter& presenter, MainQueue& mainQueue);

    TrayMenu(const TrayMenu&) = delete;
    TrayMenu& operator=(const TrayMenu&) = delete;

    // Rebuilds the whole title, reading the categories from the store each time.
    void updateButton(const std::optional<ActivityRecord>& session, std::int64_t pendingCount);

    // A new menu for each right click: the review entry only while activities are pending.
    std::vector<MenuItem> contextMenuItems() const;
    // Both dashboard entries, and the popover's own button: close the popover, open the dashboard.
    void menuOpenDashboard();

private:
    void setup();
    void refresh();

    SessionManager& sessionManager_;
    Database& database_;
    PomodoroTimer& pomodoroTimer_;
    AppPresenter& presenter_;
    MainQueue& mainQueue_;
    std::shared_ptr<char> lifetime_ = std::make_shared<char>();  // posted work checks it is alive
    std::vector<Subscription> cancellables_;
};

}  // namespace larkspan
