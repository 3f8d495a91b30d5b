#include "App/ui/QtAppPresenter.h"

#include <QSystemTrayIcon>

#include "App/ui/QmlModule.h"
#include "Platform/Qt/SettingsStore.h"
#include "Review/ui/IdleReturnController.h"

namespace larkspan {

QtAppPresenter::QtAppPresenter() {
    prepareQmlEngine(engine_);
}

void QtAppPresenter::attach(Database& database, SessionManager& sessionManager,
                            PomodoroTimer& pomodoroTimer) {
    database_ = &database;
    sessionManager_ = &sessionManager;
    pomodoroTimer_ = &pomodoroTimer;
    quickSummary_ = std::make_unique<QuickSummaryController>(database, sessionManager, pomodoroTimer, clock_);
    quickSummary_->setOnOpenDashboard([this] {
        closePopover();
        if (openDashboard_) {
            openDashboard_();
        }
    });
    quickSummary_->setOnOpenReview([this] {
        closePopover();
        openReview();
    });
    popover_ = std::make_unique<QuickSummaryPopover>(engine_, *quickSummary_);
}

namespace {

// The window titles: nothing shows them, but they name the prompts to window lists and to tools.
const QString kApprovalTitle = QStringLiteral("Larkspan \u2014 Quick check-in");
const QString kIdleTitle = QStringLiteral("Larkspan \u2014 Welcome back");

// Puts `next` in `slot`. The old window may be delivering the click that led here, so it is hidden now
// and deleted once control is back in the event loop.
void replaceWindow(std::unique_ptr<FloatingWindow>& slot, std::unique_ptr<FloatingWindow> next) {
    if (slot) {
        slot->hide();
        slot.release()->deleteLater();
    }
    slot = std::move(next);
}

}  // namespace

void QtAppPresenter::showApprovalPopup(const ActivityRecord& record, const std::vector<Category>& categories,
                                       const std::vector<std::int64_t>& topCategoryIDs,
                                       ApprovalAnswer onResolve) {
    auto* controller =
        new ApprovalPopupController(ApprovalPopup(record, categories, topCategoryIDs, std::move(onResolve)));
    auto window = std::make_unique<FloatingWindow>(
        engine_, QStringLiteral("ApprovalPopupView"),
        QVariantMap{{QStringLiteral("controller"), QVariant::fromValue(controller)}}, kApprovalTitle);
    controller->setParent(window.get());
    approvalController_ = controller;
    replaceWindow(approvalWindow_, std::move(window));
    present(*approvalWindow_);
}

void QtAppPresenter::closeApprovalPopup() {
    if (!approvalWindow_)
        return;
    approvalWindow_->hide();
    if (approvalController_)
        approvalController_->cardGone();
}

void QtAppPresenter::showReturnFromIdlePopup(double idleDuration, IdleAnswer onResolve) {
    auto* controller = new IdleReturnController(IdleReturn(idleDuration, std::move(onResolve)));
    auto window = std::make_unique<FloatingWindow>(
        engine_, QStringLiteral("IdleReturnView"),
        QVariantMap{{QStringLiteral("controller"), QVariant::fromValue(controller)}}, kIdleTitle);
    controller->setParent(window.get());
    replaceWindow(idleWindow_, std::move(window));
    present(*idleWindow_);
}

void QtAppPresenter::present(FloatingWindow& window) {
    if (floatingHints_.translucencyAvailable)
        window.setSquareCorners(!floatingHints_.translucencyAvailable());
    if (floatingHints_.showOnAllDesktops) {
        window.create();
        floatingHints_.showOnAllDesktops(window.winId());
    }
    window.showAtBottomRight();
}

void QtAppPresenter::closeIdlePopup() {
    if (idleWindow_)
        idleWindow_->hide();
}

void QtAppPresenter::openDashboard() {
    if (!database_ || !sessionManager_)
        return;
    if (!dashboard_)
        dashboard_ = std::make_unique<DashboardWindow>(engine_, *database_, *sessionManager_, clock_.now(),
                                                       SettingsStore::defaultPath());
    dashboard_->open();
}

void QtAppPresenter::openReview() {
    openDashboard();
    if (dashboard_)
        dashboard_->controller().openReview();
}

void QtAppPresenter::openDashboardWithoutTray() {
    if (!QSystemTrayIcon::isSystemTrayAvailable())
        openDashboard();
}

void QtAppPresenter::showStatusTitle(const StatusTitle& title) {
    tray_.update(title);
}

void QtAppPresenter::closePopover() {
    if (popover_) {
        popover_->close();
    }
}

void QtAppPresenter::togglePopover() {
    if (popover_) {
        popover_->toggle(tray_.geometry());
    }
}

}  // namespace larkspan
