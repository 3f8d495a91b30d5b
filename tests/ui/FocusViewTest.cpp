// The focus tab over a real store in a temporary folder: idle with no tasks, adding from the keyboard,
// running with an active task, paused, a long list of odd titles, renaming and the settings sheet,
// each state photographed in light and dark.
#include "DashboardRig.h"

using namespace larkspan;

namespace {

struct FocusTab : test::DashboardScreen {
    FocusController& focus = *screens.focus();

    bool load() {
        const bool loaded = show("FocusView", focus, {780, 740});
        // Shortcuts answer in the active window only.
        screen.window()->requestActivate();
        return loaded;
    }
    void key(Qt::Key key) { QTest::keyClick(screen.window(), key); }
    void type(const QString& text) {
        for (QChar c : text)
            QTest::keyClick(screen.window(), c.toLatin1());
    }
};

}  // namespace

class FocusViewTest : public QObject {
    Q_OBJECT
private slots:
    void idleAddRunPause() {
        FocusTab tab;
        QVERIFY(tab.load());
        QVERIFY(tab.screen.visible("emptyTasks"));
        QVERIFY(!tab.screen.visible("stopButton") && !tab.screen.visible("skipButton"));
        QVERIFY(tab.screen.saveScreenshots("focus", "idle-empty"));

        // Escape cancels the new line.
        QVERIFY(tab.screen.press("addFirstTaskButton"));
        QVERIFY(tab.screen.visible("newTaskLine"));
        tab.key(Qt::Key_Escape);
        QVERIFY(!tab.screen.visible("newTaskLine"));

        // Return adds the trimmed title, which becomes the active task; the space bar in the field
        // types, outside it starts the timer.
        QVERIFY(tab.screen.press("addTaskButton"));
        tab.type(" Write the report ");
        tab.key(Qt::Key_Return);
        tab.focus.waitForLoad();
        QCOMPARE(tab.db.fetchTodayTodos(tab.clock.now()).front().title, std::string("Write the report"));
        QTRY_VERIFY(tab.screen.visible("taskRow0"));
        QCOMPARE(tab.pomodoro.runState.get(), PomodoroTimer::RunState::idle);
        tab.key(Qt::Key_Space);
        QCOMPARE(tab.pomodoro.runState.get(), PomodoroTimer::RunState::running);
        tab.timers.advance(300);
        QCOMPARE(tab.screen.text("activeTaskTitle"), QStringLiteral("Write the report"));
        QCOMPARE(tab.screen.text("clockTime"), QStringLiteral("20:00"));
        QVERIFY(tab.screen.saveScreenshots("focus", "running"));

        QVERIFY(tab.screen.press("mainButton"));
        QCOMPARE(tab.pomodoro.runState.get(), PomodoroTimer::RunState::paused);
        QVERIFY(tab.screen.visible("stopButton") && tab.screen.visible("skipButton"));
        QVERIFY(!tab.screen.visible("activeTask"));
        QVERIFY(tab.screen.saveScreenshots("focus", "paused"));
    }

    void longListOfOddTitlesAndTheSettingsSheet() {
        FocusTab tab;
        const std::string titles[] = {
            std::string(10'000, 'w'), "Fix \U0001F41B in the parser \U0001F680",
            "\u05EA\u05D9\u05E7\u05D5\u05DF \u05D4\u05D1\u05D0\u05D2 \u05D1\u05DE\u05E0\u05EA\u05D7",
            "it's \"quoted\" '); DROP TABLE todo_items; --"};
        for (int i = 0; i < 24; ++i) {
            const auto id =
                tab.db.insertTodo(i < 4 ? titles[i] : "Task " + std::to_string(i + 1), tab.clock.now());
            for (int n = 0; n < i % 3; ++n)
                tab.db.incrementTodoPomo(id);
            if (i % 4 == 1)
                tab.db.toggleTodoComplete(id);
        }
        tab.pomodoro.todayCount.set(3);
        QVERIFY(tab.load());
        QVERIFY(tab.screen.visible("clearDoneButton"));
        QTRY_VERIFY(tab.screen.find("taskTitle0"));
        const QQuickItem* longTitle = tab.screen.find("taskTitle0")->childItems().front();
        QVERIFY(longTitle->property("truncated").toBool());
        QCOMPARE(longTitle->property("text").toString().size(), 10'000);
        QVERIFY(tab.screen.saveScreenshots("focus", "long-list"));

        // F2 renames; Escape drops the edit; "Clear done" removes the completed rows.
        QVERIFY(tab.screen.focusByKeyboard("taskTitle1"));
        tab.key(Qt::Key_F2);
        tab.type("Renamed");
        tab.key(Qt::Key_Return);
        tab.focus.waitForLoad();
        QCOMPARE(tab.db.fetchTodayTodos(tab.clock.now())[1].title, std::string("Renamed"));
        QVERIFY(tab.screen.press("clearDoneButton"));
        tab.focus.waitForLoad();
        QCOMPARE(tab.focus.tasks()->count(), 18);

        // The settings sheet: an idle clock waits for "Done" before it shows the new length.
        QVERIFY(tab.screen.press("settingsButton"));
        QTRY_VERIFY(tab.screen.visible("settingsDone"));
        QVERIFY(tab.screen.focusByKeyboard("setting0"));
        tab.key(Qt::Key_Up);
        QCOMPARE(tab.pomodoro.focusMinutes.get(), 30);
        QCOMPARE(tab.screen.text("clockTime"), QStringLiteral("25:00"));
        QVERIFY(tab.screen.saveScreenshots("focus", "settings"));
        QVERIFY(tab.screen.press("settingsDone"));
        QCOMPARE(tab.screen.text("clockTime"), QStringLiteral("30:00"));
        QCOMPARE(tab.defaults.integer("pomo_focus"), std::optional<std::int64_t>(30));
    }
};

QTEST_MAIN(FocusViewTest)
#include "FocusViewTest.moc"
