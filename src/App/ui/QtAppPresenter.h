// The Qt shell's side of AppPresenter: the tray shows the status title, and the floating prompts, the
// popover and the dashboard are Qt Quick windows sharing one QML engine.
#pragma once

#include <QPointer>
#include <QQmlEngine>

#include <functional>
#include <memory>

#include "App/AppPresenter.h"
#include "App/ui/DashboardWindow.h"
#include "App/ui/FloatingWindow.h"
#include "App/ui/QuickSummaryController.h"
#include "App/ui/QuickSummaryPopover.h"
#include "App/ui/TrayIcon.h"
#include "Data/Database.h"
#include "Focus/PomodoroTimer.h"
#include "Platform/Clock.h"
#include "Review/ui/ApprovalPopupController.h"
#include "Tracking/SessionManager.h"

namespace larkspan {

class QtAppPresenter final : public AppPresenter {
public:
    QtAppPresenter();

    TrayIcon& tray() { return tray_; }
    QQmlEngine& engine() { return engine_; }

    // What the windows show; given once the application has launched, before the event loop runs.
    // Every argument must outlive the presenter.
    void attach(Database& database, SessionManager& sessionManager, PomodoroTimer& pomodoroTimer);

    void showApprovalPopup(const ActivityRecord& record, const std::vector<Category>& categories,
                           const std::vector<std::int64_t>& topCategoryIDs,
                           ApprovalAnswer onResolve) override;
    void closeApprovalPopup() override;
    void showReturnFromIdlePopup(double idleDuration, IdleAnswer onResolve) override;
    void closeIdlePopup() override;
    void openDashboard() override;
    // The dashboard, on its review screen.
    void openReview();
    void showStatusTitle(const StatusTitle& title) override;
    void closePopover() override;
    // At launch: with no tray to reach the application from, the dashboard opens in its place.
    void openDashboardWithoutTray();
    // A left click on the tray icon.
    void togglePopover();
    // What the popover's "Open Dashboard" does after closing the popover.
    void setOpenDashboard(std::function<void()> action) { openDashboard_ = std::move(action); }
    // What the desktop adds to the floating prompts; a part left unset is skipped.
    struct FloatingWindowHints {
        // Asks for a created, still hidden window to be shown on every virtual desktop.
        std::function<void(WId)> showOnAllDesktops;
        // Whether translucent windows are composed; without it, the cards are drawn square.
        std::function<bool()> translucencyAvailable;
    };
    void setFloatingWindowHints(FloatingWindowHints hints) { floatingHints_ = std::move(hints); }

    // The floating prompts' windows as last shown; null before the first. Closing only hides them.
    FloatingWindow* approvalWindow() const { return approvalWindow_.get(); }
    FloatingWindow* idleWindow() const { return idleWindow_.get(); }

private:
    void present(FloatingWindow& window);

    TrayIcon tray_;
    QQmlEngine engine_;
    Database* database_ = nullptr;
    SessionManager* sessionManager_ = nullptr;
    PomodoroTimer* pomodoroTimer_ = nullptr;
    std::unique_ptr<DashboardWindow> dashboard_;  // made at the first request, then reused
    SystemClock clock_;
    std::function<void()> openDashboard_;
    FloatingWindowHints floatingHints_;
    // Made by attach; the summary refreshes from then on, also while the popover is closed.
    std::unique_ptr<QuickSummaryController> quickSummary_;
    std::unique_ptr<QuickSummaryPopover> popover_;
    // Each prompt's last window, which owns its controller. A new prompt of the same kind replaces it.
    std::unique_ptr<FloatingWindow> approvalWindow_;
    QPointer<ApprovalPopupController> approvalController_;
    std::unique_ptr<FloatingWindow> idleWindow_;
};

}  // namespace larkspan
