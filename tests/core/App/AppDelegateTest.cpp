// The application's wiring and its prompt arbitration, headless: fakes for the desktop and the
// shell, a real store in a temporary folder, and a manual clock and main queue.
#include "App/AppDelegate.h"

#include <gtest/gtest.h>

#include "ActivityBuilder.h"
#include "Classification/CategorySettings.h"
#include "RecordingNotifier.h"
#include "RecordingPresenter.h"
#include "TrackerRig.h"

namespace larkspan {
namespace {

using namespace test;

constexpr Date kStart = 1'790'000'000;  // 2026-09-21, a Monday
const RunningApplication kTerminal{"org.gnome.Terminal", "Terminal", 10};

// The rig's own manager and monitor stay idle; the delegate makes and runs its own.
struct AppDelegateTest : ::testing::Test, TrackerRig {
    AppDelegateTest() : TrackerRig(kStart) {}

    RecordingNotifier notifier;
    RecordingPresenter presenter;
    std::shared_ptr<AppDelegate> app;

    void launch() {
        app = std::make_shared<AppDelegate>(
            db, AppEnvironment{clock, mainQueue, timers, defaults, sounds, notifier, notifications, workspace,
                               scripts, bg, presenter});
        app->start();
        settle();
    }
    std::int64_t insertPending(Date start, std::string app = "Mystery") {
        return db.insertActivity(ActivityBuilder(0, start, 30).app(std::move(app)).pending(0.3));
    }
    std::int64_t insertAway(Date start, std::int64_t seconds) {
        return db.insertActivity(ActivityBuilder::away(0, start, seconds));
    }
    ActivityRecord row(std::int64_t id) { return db.fetchActivity(id).value(); }

    ~AppDelegateTest() override {
        if (app)
            app->stop();
    }
};

TEST_F(AppDelegateTest, TheFirstPendingSessionPromptsAtOnceThenTheLimitHoldsForTenMinutes) {
    const auto pending = insertPending(kStart - 3600);
    workspace.setFrontmost(kTerminal);
    launch();
    // The monitor's first capture became a session, and its publication found the pending row.
    ASSERT_TRUE(app->sessionManager()->currentSession.get());
    ASSERT_EQ(presenter.approvals.size(), 1u);
    EXPECT_EQ(presenter.approvals[0].record.id, pending);

    for (const double later : {599.0, 600.0, 601.0}) {
        clock.set(kStart + later);
        presenter.calls.clear();
        app->maybeShowApprovalPopup();
        EXPECT_EQ(presenter.approvals.size(), later > 600 ? 2u : 1u) << later;
    }
    // A popup still open is ordered out before the next one shows.
    EXPECT_EQ(presenter.calls, (std::vector<std::string>{"closeApproval", "showApproval"}));
}

TEST_F(AppDelegateTest, AReturnPromptsOnlyAfterMoreThanFiveMinutesAndSharesTheLimit) {
    launch();
    notifications.post(userReturnedFromIdle, {});
    notifications.post(userReturnedFromIdle, {{userReturnedFromIdleSecondsKey, 300.0}});
    EXPECT_TRUE(presenter.idlePrompts.empty());
    notifications.post(userReturnedFromIdle, {{userReturnedFromIdleSecondsKey, 300.5}});
    ASSERT_EQ(presenter.idlePrompts.size(), 1u);
    EXPECT_EQ(presenter.idlePrompts[0].idleDuration, 300.5);

    // The welcome-back prompt spent the limit for both kinds.
    insertPending(kStart - 600);
    app->maybeShowApprovalPopup();
    notifications.post(userReturnedFromIdle, {{userReturnedFromIdleSecondsKey, 4000.0}});
    EXPECT_TRUE(presenter.approvals.empty());
    EXPECT_EQ(presenter.idlePrompts.size(), 1u);
}

TEST_F(AppDelegateTest, TheIdleAnswerLandsOnTheLastAwayRowInsideItsWindow) {
    launch();
    const double idle = 1200;
    clock.set(kStart + 5000);
    const Date now = clock.now();
    const auto before = insertAway(now - idle - 61, 20);    // a minute and a second too early
    const auto inside = insertAway(now - idle - 55, idle);  // seen as idle a little after it began
    const auto work = insertPending(now - 30, "Editor");    // after the return
    notifications.post(userReturnedFromIdle, {{userReturnedFromIdleSecondsKey, idle}});
    ASSERT_EQ(presenter.idlePrompts.size(), 1u);
    presenter.calls.clear();
    presenter.idlePrompts[0].onResolve(category_id::communication);

    EXPECT_EQ(row(inside).categoryID, category_id::communication);
    EXPECT_EQ(row(before).categoryID, category_id::awayBreak);
    EXPECT_FALSE(row(work).isApproved);
    EXPECT_EQ(presenter.calls, (std::vector<std::string>{"closeIdle"}));
}

TEST_F(AppDelegateTest, AnApprovalAnswerResolvesAndAnAbsentAnswerLeavesTheActivityPending) {
    launch();
    const auto first = insertPending(kStart - 900, "Mystery");
    app->showApprovalPopup(row(first));
    presenter.calls.clear();
    presenter.approvals.back().onResolve(std::nullopt);
    EXPECT_FALSE(row(first).isApproved);
    EXPECT_EQ(presenter.calls, (std::vector<std::string>{"closeApproval"}));

    presenter.approvals.back().onResolve(category_id::coding);
    EXPECT_TRUE(row(first).isApproved && row(first).categoryID == category_id::coding);

    // A callback that outlives the delegate does nothing.
    auto answer = presenter.approvals.back().onResolve;
    app->stop();
    app.reset();
    presenter.calls.clear();
    answer(category_id::communication);
    EXPECT_TRUE(presenter.calls.empty());
}

TEST_F(AppDelegateTest, ThePopupOffersTheUsersSixMostUsedCategoriesFilledUpWithDefaults) {
    launch();
    const auto pending = insertPending(kStart - 100);
    app->showApprovalPopup(row(pending));
    EXPECT_EQ(presenter.approvals.back().topCategoryIDs, (std::vector<std::int64_t>{1, 4, 6, 10, 16, 17}));

    db.insertCategory(newCategory("Gardening", "x", Productivity::neutral));
    const std::int64_t gardening = db.fetchCategories().back().id;
    auto answered = [&](std::int64_t category, int times, bool approved) {
        for (int i = 0; i < times; ++i) {
            auto id = db.insertActivity(ActivityBuilder(0, kStart - 7200 + i, 10).category(category));
            db.updateActivityCategory(id, category, approved);
        }
    };
    answered(4, 3, true);
    answered(gardening, 2, true);
    answered(17, 5, false);  // only approved rows count
    app->showApprovalPopup(row(pending));
    EXPECT_EQ(presenter.approvals.back().topCategoryIDs,
              (std::vector<std::int64_t>{4, gardening, 1, 6, 10, 16}));
}

TEST_F(AppDelegateTest, AFinishedFocusSessionCreditsItsTaskAndTheDayAndEveryEndNotifies) {
    launch();
    auto& timer = *app->pomodoroTimer();
    const auto task = db.insertTodo("Write the report", clock.now());
    timer.onSessionComplete(PomodoroMode::focus, task);
    timer.onSessionComplete(PomodoroMode::focus, std::nullopt);
    timer.onSessionComplete(PomodoroMode::shortBreak, task);
    timer.onSessionComplete(PomodoroMode::longBreak, std::nullopt);
    EXPECT_EQ(db.fetchTodayTodos(clock.now()).at(0).pomodoroCount, 1);
    EXPECT_EQ(db.fetchDailyPomoCounts(clock.now() - 86400, clock.now() + 86400),
              (std::map<std::string, int>{{"2026-09-21", 2}}));

    ASSERT_EQ(notifier.sent.size(), 4u);
    // Each notification is new, never a replacement of the last.
    EXPECT_NE(notifier.sent[0].id, notifier.sent[1].id);
}

TEST_F(AppDelegateTest, TheWindowAccessPromptShowsAtMostOnceInSevenDays) {
    const Date week = AppDelegate::accessibilityPromptInterval;
    // Whether windows can be read, the date of the last prompt, whether it prompts now.
    const std::tuple<const char*, bool, std::optional<double>, bool> cases[] = {
        {"never asked", false, std::nullopt, true},
        {"asked exactly seven days ago", false, kStart - week, true},
        {"asked a second less than seven days ago", false, kStart - week + 1, false},
    };
    for (const auto& [what, granted, stored, prompts] : cases) {
        SCOPED_TRACE(what);
        defaults.values.clear();
        if (stored)
            defaults.setReal(kLastAccessibilityPromptDateKey, *stored);
        workspace.setCanReadWindows(granted);
        const int promptsBefore = workspace.windowAccessPrompts();
        launch();
        app->stop();
        EXPECT_EQ(workspace.windowAccessPrompts() - promptsBefore, prompts ? 1 : 0);
        EXPECT_EQ(defaults.real(kLastAccessibilityPromptDateKey),
                  prompts ? std::optional<double>(kStart) : stored);
    }
}

TEST_F(AppDelegateTest, WriteFailuresAreReportedOnceAnHour) {
    launch();
    db.exec("PRAGMA query_only=1");
    RawActivity sample;
    for (const double wait : {0.0, 30.0, 3540.0, 30.0}) {  // four refusals over one hour and a minute
        timers.advance(wait);
        sample.appName = "Zqx" + std::to_string(wait);
        app->sessionManager()->process(sample);
    }
    ASSERT_EQ(notifier.sent.size(), 2u);
    EXPECT_EQ(notifier.sent[0].id, notifier.sent[1].id);  // the second replaces the first
    EXPECT_EQ(notifier.sent[0].title,
              "Larkspan cannot save your activity: attempt to write a readonly database");
}

}  // namespace
}  // namespace larkspan
