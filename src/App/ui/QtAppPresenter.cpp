#include "App/ui/QtAppPresenter.h"

#include <QDateTime>
#include <QDebug>
#include <QSystemTrayIcon>

#include "App/ui/QmlModule.h"
#include "Platform/Qt/SettingsStore.h"

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
    popover_ = std::make_unique<QuickSummaryPopover>(engine_, *quickSummary_);
}

void QtAppPresenter::showApprovalPopup(const ActivityRecord& record, const std::vector<Category>&,
                                       const std::vector<std::int64_t>& topCategoryIDs, ApprovalAnswer) {
    qInfo().noquote() << "Larkspan: approval prompt for" << QString::fromStdString(record.displayTitle())
                      << "offering" << topCategoryIDs.size() << "categories";
}

void QtAppPresenter::closeApprovalPopup() {}

void QtAppPresenter::showReturnFromIdlePopup(double idleDuration, IdleAnswer) {
    qInfo().noquote() << "Larkspan: welcome-back prompt for" << qRound64(idleDuration) << "seconds away";
}

void QtAppPresenter::closeIdlePopup() {}

void QtAppPresenter::openDashboard() {
    if (!database_ || !sessionManager_)
        return;
    if (!dashboard_)
        dashboard_ = std::make_unique<DashboardWindow>(engine_, *database_, *sessionManager_,
                                                       QDateTime::currentMSecsSinceEpoch() / 1000.0,
                                                       SettingsStore::defaultPath());
    dashboard_->open();
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
