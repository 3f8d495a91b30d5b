// The tray's controller: which values redraw the title, through the main queue, and what the menu
// offers. The title's own rules are tested with buildStatusTitle.
#include "App/TrayMenu.h"

#include <gtest/gtest.h>

#include "ActivityBuilder.h"
#include "RecordingPresenter.h"
#include "TrackerRig.h"

namespace larkspan {
namespace {

using namespace test;

struct TrayMenuTest : ::testing::Test, TrackerRig {
    RecordingPresenter presenter;

    std::string lastTitle() const { return presenter.titles.back().plainText(); }
};

TEST_F(TrayMenuTest, DrawsStartingAtOnceThenRedrawsForEachValueThroughTheMainQueue) {
    mainQueue.drain();
    TrayMenu controller(*manager, db, pomodoro, presenter, mainQueue);
    ASSERT_EQ(presenter.titles.size(), 1u);
    EXPECT_EQ(lastTitle(), "\u23F1 Starting\u2026");

    // Every subscription delivers its first value, each later on the main thread.
    mainQueue.drain();
    EXPECT_EQ(presenter.titles.size(), 5u);

    manager->currentSession.set(ActivityBuilder(1, clock.now(), 0).app("Terminal").category(1));
    mainQueue.drain();
    EXPECT_EQ(lastTitle(), "\U0001F4BB Coding");

    manager->pendingApprovalCount.set(3);
    pomodoro.start();
    pomodoro.pause();
    mainQueue.drain();
    EXPECT_EQ(lastTitle(), "\U0001F4BB Coding  \U0001F345\u23F8 25:00  3 \u25CF");
}

TEST_F(TrayMenuTest, TheMenuOffersReviewOnlyWhilePendingAndOutlivesNoController) {
    auto controller = std::make_unique<TrayMenu>(*manager, db, pomodoro, presenter, mainQueue);
    const MenuItem dashboard{"Open Dashboard", MenuItem::Action::openDashboard};
    const MenuItem separator{"", MenuItem::Action::separator};
    const MenuItem quit{"Quit Larkspan", MenuItem::Action::quit};
    mainQueue.drain();
    EXPECT_EQ(controller->contextMenuItems(), (std::vector<MenuItem>{dashboard, separator, quit}));

    manager->pendingApprovalCount.set(12);
    mainQueue.drain();
    const MenuItem review{"Review 12 Pending\u2026", MenuItem::Action::openDashboard};
    EXPECT_EQ(controller->contextMenuItems(), (std::vector<MenuItem>{dashboard, review, separator, quit}));

    // Work posted for a controller that is gone does nothing.
    controller.reset();
    const auto drawn = presenter.titles.size();
    manager->pendingApprovalCount.set(1);
    mainQueue.drain();
    EXPECT_EQ(presenter.titles.size(), drawn);
}

}  // namespace
}  // namespace larkspan
