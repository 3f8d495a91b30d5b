// The Qt shell's side of AppPresenter: the tray shows the status title, and the floating prompts, the
// popover and the dashboard are Qt Quick windows sharing one QML engine.
//
// Tracking with the tray alone needs no Qt Quick: the engine, the scene graph and each window are
// made when first shown, so a tracker nobody looks at carries none of them. What a window used is
// given back when it closes: a card goes with its view, the popover and the dashboard keep their
// state but release their scene graphs, and the freed heap goes back to the system.
#pragma once

#include <QPointer>
#include <QQmlEngine>
#include <QTimer>

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
    // The engine of every window, made at the first call.
    QQmlEngine& engine();

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

    // The floating prompts' windows while shown; null before the first and once closed.
    FloatingWindow* approvalWindow() const { return approvalWindow_.get(); }
    FloatingWindow* idleWindow() const { return idleWindow_.get(); }
    // The popover's window once it has been opened; null before.
    QQuickWindow* popoverWindow() const { return popover_ ? &popover_->window() : nullptr; }

private:
    void present(FloatingWindow& window);
    // Gives memory back once `window` is hidden for good or for now.
    void releaseWhenHidden(QWindow& window);

    TrayIcon tray_;
    std::unique_ptr<QQmlEngine> engine_;
    // Collects the engine's garbage and trims the heap shortly after a window closed; a burst of
    // closes trims once.
    QTimer trim_;
    Database* database_ = nullptr;
    SessionManager* sessionManager_ = nullptr;
    PomodoroTimer* pomodoroTimer_ = nullptr;
    std::unique_ptr<DashboardWindow> dashboard_;  // made at the first request, then reused
    SystemClock clock_;
    std::function<void()> openDashboard_;
    FloatingWindowHints floatingHints_;
    // Made at the first opening; the summary refreshes from then on, also while the popover is closed.
    std::unique_ptr<QuickSummaryController> quickSummary_;
    std::unique_ptr<QuickSummaryPopover> popover_;
    // Each prompt's last window, which owns its controller. A new prompt of the same kind replaces it.
    std::unique_ptr<FloatingWindow> approvalWindow_;
    QPointer<ApprovalPopupController> approvalController_;
    std::unique_ptr<FloatingWindow> idleWindow_;
};

}  // namespace larkspan
