#include "App/TrayMenu.h"

namespace larkspan {

TrayMenu::TrayMenu(SessionManager& sessionManager, Database& database, PomodoroTimer& pomodoroTimer,
                   AppPresenter& presenter, MainQueue& mainQueue)
    : sessionManager_(sessionManager),
      database_(database),
      pomodoroTimer_(pomodoroTimer),
      presenter_(presenter),
      mainQueue_(mainQueue) {
    setup();
}

void TrayMenu::setup() {
    updateButton(std::nullopt, 0);
    // Each value arrives through the main queue, behind whatever the main thread is doing; the
    // posted work does nothing once the controller is gone.
    auto later = [this](std::function<void(TrayMenu&)> work) {
        mainQueue_.post([alive = std::weak_ptr<char>(lifetime_), this, work = std::move(work)] {
            if (alive.lock())
                work(*this);
        });
    };
    cancellables_.push_back(sessionManager_.currentSession.subscribe([later](const auto& session) {
        later([session](TrayMenu& self) {
            self.updateButton(session, self.sessionManager_.pendingApprovalCount.get());
        });
    }));
    cancellables_.push_back(sessionManager_.pendingApprovalCount.subscribe([later](std::int64_t count) {
        later(
            [count](TrayMenu& self) { self.updateButton(self.sessionManager_.currentSession.get(), count); });
    }));
    cancellables_.push_back(
        pomodoroTimer_.secondsLeft.subscribe([later](std::int64_t) { later(&TrayMenu::refresh); }));
    cancellables_.push_back(
        pomodoroTimer_.runState.subscribe([later](PomodoroTimer::RunState) { later(&TrayMenu::refresh); }));
}

void TrayMenu::refresh() {
    updateButton(sessionManager_.currentSession.get(), sessionManager_.pendingApprovalCount.get());
}

void TrayMenu::updateButton(const std::optional<ActivityRecord>& session, std::int64_t pendingCount) {
    const CategoriesByID categories = categoriesByID(database_.fetchCategories());

    const auto runState = pomodoroTimer_.runState.get();
    TimerTitleState timer;
    timer.active = runState != PomodoroTimer::RunState::idle;
    timer.paused = runState == PomodoroTimer::RunState::paused;
    timer.focusMode = pomodoroTimer_.mode.get() == PomodoroMode::focus;
    timer.displayTime = pomodoroTimer_.displayTime();
    presenter_.showStatusTitle(buildStatusTitle(session, pendingCount, categories, timer));
}

std::vector<MenuItem> TrayMenu::contextMenuItems() const {
    std::vector<MenuItem> items{{"Open Dashboard", MenuItem::Action::openDashboard}};
    const auto pending = sessionManager_.pendingApprovalCount.get();
    if (pending > 0)
        items.push_back(
            {"Review " + std::to_string(pending) + " Pending\u2026", MenuItem::Action::openDashboard});
    items.push_back({"", MenuItem::Action::separator});
    items.push_back({"Quit Larkspan", MenuItem::Action::quit});
    return items;
}

void TrayMenu::menuOpenDashboard() {
    presenter_.closePopover();
    presenter_.openDashboard();
}

}  // namespace larkspan
