// The quick summary over a real database in a temporary folder: a full day with a running timer and
// pending rows, the timer's buttons, an empty day and the buttons' actions. The texts and colours'
// rules are the core's tests.
#include <QSignalSpy>
#include <QTest>
#include <QThreadPool>
#include <QTimer>

#include "ActivityBuilder.h"
#include "App/ui/QuickSummaryController.h"
#include "LocalInstant.h"
#include "QuickScreen.h"
#include "ScopedTimeZone.h"
#include "TrackerRig.h"

using namespace larkspan;
using test::ActivityBuilder;

namespace {

struct BerlinZone {
    test::ScopedTimeZone zone{"Europe/Berlin"};
};

// One day's tracker over its own database, with the clock at 11:30 on a Tuesday.
struct Day : BerlinZone, test::TrackerRig {
    Day() : TrackerRig(test::localInstant(2026, 3, 10, 11, 30)) {}

    QuickSummaryController controller{db, *manager, pomodoro, clock};

    ~Day() {
        // Loads in flight read the database, which goes with the day.
        QThreadPool::globalInstance()->waitForDone();
    }

    // Stores an activity starting at `hour`:`minute` today.
    void add(int hour, int minute, std::int64_t seconds, const char* app, const char* title,
             std::int64_t category) {
        const Date start = test::localInstant(2026, 3, 10, hour, minute);
        db.insertActivity(ActivityBuilder(-1, start, seconds).app(app).title(title).category(category));
    }

    // Brings `app` to the front with a window titled `title`.
    void track(const char* app, const char* title) {
        RawActivity sample;
        sample.appName = app;
        sample.windowTitle = title;
        manager->process(sample);
        mainQueue.drain();
    }

    bool show(QuickScreen& screen) {
        return screen.load("QuickSummaryView", {{"controller", QVariant::fromValue(&controller)}},
                           {320, 420});
    }
    bool load() {
        QSignalSpy loaded(&controller, &QuickSummaryController::dayChanged);
        controller.load();
        return loaded.wait(5000);
    }
};

}  // namespace

class QuickSummaryViewTest : public QObject {
    Q_OBJECT
private slots:
    void fullDayShowsEverySection() {
        Day day;
        day.add(9, 0, 3000, "Code", "main.cpp \u2014 larkspan", category_id::coding);
        day.add(10, 0, 1200, "Firefox", "Never Gonna Give You Up \U0001F3B5", category_id::entertainment);
        day.add(10, 20, 900, "LibreOffice Writer", "\u05E9\u05DC\u05D5\u05DD draft.odt",
                category_id::writing);
        const Date pendingStart = test::localInstant(2026, 3, 10, 11, 2);
        day.db.insertActivity(ActivityBuilder(-1, pendingStart, 45)
                                  .app("Zqx")
                                  .title("Mystery tool")
                                  .category(category_id::other)
                                  .pending(0.3));
        day.manager->refreshApprovalCount();
        // Five minutes into a focus session, then a terminal comes to the front.
        day.pomodoro.start();
        day.timers.advance(300);
        day.track("kitty", "~/src/larkspan");

        QuickScreen screen;
        QVERIFY(day.show(screen));
        QVERIFY(day.load());

        // 3000 + 1200 + 900 + 45 seconds.
        QCOMPARE(screen.text("totalText"), QStringLiteral("1h 25m"));
        // The longest bar is Coding's share of the day.
        const QQuickItem* fill = screen.find("breakdownFill0");
        QVERIFY(fill && screen.find("breakdownBar3") && !screen.find("breakdownBar4"));
        QTRY_COMPARE(qRound(fill->width() * 1000 / fill->parentItem()->width()),
                     qRound(3000.0 * 1000 / 5145));
        QVERIFY(!screen.text("productivityText").isEmpty() && screen.visible("pendingBanner"));
        QTest::qWait(600);  // the ring's arc has caught up
        QVERIFY(screen.saveScreenshots("quick-summary", "full-day-running"));
    }

    // Each button does its action, the timer's by mouse and by a screen reader; the view follows the
    // timer's run state and the tracker's session at once.
    void timerButtonsDriveTheTimer() {
        Day day;
        QuickScreen screen;
        QVERIFY(day.show(screen));
        QVERIFY(day.load());
        QVERIFY(screen.visible("breakdownEmpty") && screen.visible("recentEmpty"));
        QVERIFY(!screen.visible("timerStopButton") && !screen.visible("pendingBanner"));
        QVERIFY(screen.saveScreenshots("quick-summary", "empty-day"));

        QVERIFY(screen.press("timerMainButton"));
        QCOMPARE(day.pomodoro.runState.get(), PomodoroTimer::RunState::running);
        day.timers.advance(450);
        QVERIFY(screen.click("timerMainButton"));
        QCOMPARE(day.pomodoro.runState.get(), PomodoroTimer::RunState::paused);
        QCOMPARE(screen.text("timerTime"), QStringLiteral("17:30"));
        QTest::qWait(600);  // the ring's arc has caught up
        QVERIFY(screen.saveScreenshots("quick-summary", "timer-paused"));
        QVERIFY(screen.focusByKeyboard("timerMainButton"));
        QVERIFY(screen.saveScreenshots("quick-summary", "focus-ring"));
        QVERIFY(screen.click("timerMainButton"));
        QCOMPARE(day.pomodoro.runState.get(), PomodoroTimer::RunState::running);
        QVERIFY(screen.click("timerStopButton"));
        QCOMPARE(day.pomodoro.runState.get(), PomodoroTimer::RunState::idle);
        QVERIFY(!screen.visible("timerStopButton"));

        // The other buttons run their actions.
        int opened = 0;
        int reviewed = 0;
        day.controller.setOnOpenDashboard([&opened] { ++opened; });
        day.controller.setOnOpenReview([&reviewed] { ++reviewed; });
        QVERIFY(screen.click("openDashboardButton"));
        QCOMPARE(opened, 1);
        // The session and the pending count show as they are published, with no load in between.
        day.track("kitty", "~/src/larkspan");
        day.manager->pendingApprovalCount.set(2);
        QCOMPARE(screen.text("sessionTitle"), QStringLiteral("~/src/larkspan"));
        QVERIFY(screen.visible("pendingBanner"));
        screen.grab();  // lays the banner out
        QVERIFY(screen.click("pendingBanner"));
        QCOMPARE(reviewed, 1);
        QCOMPARE(opened, 1);
        // The refresh runs without anyone asking: a row stored meanwhile appears. The test shortens
        // the wait, not the behaviour.
        auto* refresh = day.controller.findChild<QTimer*>();
        QVERIFY(refresh && refresh->isActive());
        day.add(11, 0, 600, "Code", "refresh.cpp", category_id::coding);
        QSignalSpy loaded(&day.controller, &QuickSummaryController::dayChanged);
        refresh->setInterval(50);
        QVERIFY(loaded.wait(5'000));
        QCOMPARE(screen.text("recentTitle0"), QStringLiteral("refresh.cpp"));
    }
};

QTEST_MAIN(QuickSummaryViewTest)
#include "QuickSummaryViewTest.moc"
