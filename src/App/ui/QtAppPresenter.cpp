#include "App/ui/QtAppPresenter.h"

#include <QSystemTrayIcon>

#include <malloc.h>

#include "App/ui/QmlModule.h"
#include "Platform/Qt/SettingsStore.h"
#include "Review/ui/IdleReturnController.h"

namespace larkspan {

namespace {

// Long enough for the closed window's deferred deletions to have run.
constexpr int kTrimDelayMilliseconds = 500;

}  // namespace

QtAppPresenter::QtAppPresenter() {
    trim_.setSingleShot(true);
    trim_.setInterval(kTrimDelayMilliseconds);
    trim_.callOnTimeout([this] {
        if (engine_)
            engine_->collectGarbage();
        malloc_trim(0);
    });
}

QQmlEngine& QtAppPresenter::engine() {
    if (!engine_) {
        engine_ = std::make_unique<QQmlEngine>();
        prepareQmlEngine(*engine_);
    }
    return *engine_;
}

void QtAppPresenter::attach(Database& database, SessionManager& sessionManager,
                            PomodoroTimer& pomodoroTimer) {
    database_ = &database;
    sessionManager_ = &sessionManager;
    pomodoroTimer_ = &pomodoroTimer;
}

void QtAppPresenter::releaseWhenHidden(QWindow& window) {
    QObject::connect(&window, &QWindow::visibleChanged, &trim_, [this](bool visible) {
        if (!visible)
            trim_.start();
    });
}

namespace {

// The window titles: nothing shows them, but they name the prompts to window lists and to tools.
const QString kApprovalTitle = QStringLiteral("Larkspan \u2014 Quick check-in");
const QString kIdleTitle = QStringLiteral("Larkspan \u2014 Welcome back");

// Puts `next`, or nothing, in `slot`. The old window may be delivering the click that led here, so it is
// hidden now and deleted once control is back in the event loop.
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
        engine(), QStringLiteral("ApprovalPopupView"),
        QVariantMap{{QStringLiteral("controller"), QVariant::fromValue(controller)}}, kApprovalTitle);
    controller->setParent(window.get());
    approvalController_ = controller;
    replaceWindow(approvalWindow_, std::move(window));
    present(*approvalWindow_);
}

void QtAppPresenter::closeApprovalPopup() {
    if (!approvalWindow_)
        return;
    if (approvalController_)
        approvalController_->cardGone();
    replaceWindow(approvalWindow_, nullptr);
}

void QtAppPresenter::showReturnFromIdlePopup(double idleDuration, IdleAnswer onResolve) {
    auto* controller = new IdleReturnController(IdleReturn(idleDuration, std::move(onResolve)));
    auto window = std::make_unique<FloatingWindow>(
        engine(), QStringLiteral("IdleReturnView"),
        QVariantMap{{QStringLiteral("controller"), QVariant::fromValue(controller)}}, kIdleTitle);
    controller->setParent(window.get());
    replaceWindow(idleWindow_, std::move(window));
    present(*idleWindow_);
}

void QtAppPresenter::present(FloatingWindow& window) {
    releaseWhenHidden(window);
    if (floatingHints_.translucencyAvailable)
        window.setSquareCorners(!floatingHints_.translucencyAvailable());
    if (floatingHints_.showOnAllDesktops) {
        window.create();
        floatingHints_.showOnAllDesktops(window.winId());
    }
    window.showAtBottomRight();
}

void QtAppPresenter::closeIdlePopup() {
    replaceWindow(idleWindow_, nullptr);
}

void QtAppPresenter::openDashboard() {
    if (!database_ || !sessionManager_ || !pomodoroTimer_)
        return;
    if (!dashboard_) {
        dashboard_ = std::make_unique<DashboardWindow>(
            engine(), DashboardServices{*database_, *sessionManager_, *pomodoroTimer_, clock_},
            SettingsStore::defaultPath());
        releaseWhenHidden(dashboard_->window());
    }
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
    if (!database_ || !sessionManager_ || !pomodoroTimer_)
        return;
    if (!popover_) {
        quickSummary_ =
            std::make_unique<QuickSummaryController>(*database_, *sessionManager_, *pomodoroTimer_, clock_);
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
        popover_ = std::make_unique<QuickSummaryPopover>(engine(), *quickSummary_);
        releaseWhenHidden(popover_->window());
    }
    popover_->toggle(tray_.geometry());
}

}  // namespace larkspan
