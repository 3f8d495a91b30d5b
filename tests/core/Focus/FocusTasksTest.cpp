#include <gtest/gtest.h>

#include <string>

#include "Focus/FocusScreen.h"
#include "Focus/FocusTasks.h"
#include "ScopedTimeZone.h"
#include "SqliteFile.h"
#include "TrackerRig.h"

namespace larkspan {
namespace {

using RunState = PomodoroTimer::RunState;

TEST(FocusScreen, TodayFiguresButtonsAndDots) {
    EXPECT_EQ(todayTimeText(0, 25), std::nullopt);
    EXPECT_EQ(focusButtons(RunState::running), (FocusButtons{true, "Pause", true, true}));

    EXPECT_EQ(cycleDots(2, 1), (std::vector<bool>{true, false}));
    EXPECT_EQ(cycleDots(2, 3), (std::vector<bool>{true, true}));  // the setting lowered mid-cycle
    EXPECT_EQ(cycleDots(1'000'000, 0).size(), static_cast<std::size_t>(kMaxCycleDots));
    // Titles are trimmed of spaces and tabs only.
    EXPECT_EQ(taskTitleToSave(" \t  "), std::nullopt);
    EXPECT_EQ(taskTitleToSave("\t two\nlines\n "), "two\nlines\n");
}

// The focus tab's rules over a real store and the timer, noting the task each finished focus
// session was for.
class FocusTasksTest : public ::testing::Test, protected test::TrackerRig {
protected:
    FocusTasksTest() : TrackerRig(1'763'884'800.0) {}

    test::ScopedTimeZone zone{"Europe/Berlin"};
    FocusTasks tasks{db, pomodoro, clock};

    std::vector<std::int64_t> credited;

    void SetUp() override {
        pomodoro.onSessionComplete = [this](PomodoroMode mode, std::optional<std::int64_t> task) {
            if (mode == PomodoroMode::focus && task)
                credited.push_back(*task);
        };
    }
    std::vector<TodoItem> today() { return db.fetchTodayTodos(clock.now()); }
    std::int64_t idOf(const std::string& title) {
        for (const TodoItem& task : today())
            if (task.title == title)
                return task.id;
        return -1;
    }
    std::optional<std::string> label() {
        return activeTaskTitle(pomodoro.runState.get(), pomodoro.activeTaskID.get(), today());
    }
};

TEST_F(FocusTasksTest, ActiveTaskRules) {
    EXPECT_FALSE(tasks.add("   "));
    EXPECT_TRUE(today().empty());

    // A new task takes over from the active one.
    ASSERT_TRUE(tasks.add("  Write report "));
    ASSERT_TRUE(tasks.add("Review PR"));
    EXPECT_EQ(pomodoro.activeTaskID.get(), idOf("Review PR"));

    // Tapping the active task clears it: the next focus session counts for the day only.
    tasks.select(idOf("Review PR"));
    EXPECT_EQ(pomodoro.activeTaskID.get(), std::nullopt);
    pomodoro.start();
    timers.advance(25 * 60 + 1);
    pomodoro.switchMode(PomodoroMode::focus);
    EXPECT_EQ(pomodoro.todayCount.get(), 1);
    EXPECT_TRUE(credited.empty());

    // Deleting the active task mid-session: the label goes, the session runs on for the day only.
    tasks.select(idOf("Write report"));
    pomodoro.start();
    timers.advance(60);
    EXPECT_EQ(label(), "Write report");
    tasks.remove(idOf("Write report"));
    EXPECT_EQ(pomodoro.activeTaskID.get(), std::nullopt);
    EXPECT_EQ(label(), std::nullopt);
    timers.advance(25 * 60);
    EXPECT_EQ(pomodoro.todayCount.get(), 2);
    EXPECT_TRUE(credited.empty());
}

TEST_F(FocusTasksTest, OddTitlesAreStoredVerbatimAndBlankRenamesIgnored) {
    const std::string titles[] = {std::string(10'000, 'x'), "Fix \U0001F41B in parser \U0001F680",
                                  "\u05EA\u05D9\u05E7\u05D5\u05DF \u05D1\u05D0\u05D2",
                                  "it's '); DROP TABLE todo_items; --"};
    for (const std::string& title : titles)
        ASSERT_TRUE(tasks.add(title));
    std::vector<std::string> stored;
    std::ranges::transform(today(), std::back_inserter(stored), &TodoItem::title);
    EXPECT_EQ(stored, std::vector<std::string>(std::begin(titles), std::end(titles)));

    tasks.rename(today().front().id, " \t ");
    EXPECT_EQ(today().front().title, titles[0]);
}

TEST_F(FocusTasksTest, FailedInsertLeavesNoRowAndNoActiveTask) {
    ASSERT_TRUE(tasks.add("Kept"));
    const auto kept = pomodoro.activeTaskID.get();
    test::SqliteFile(dir / "tracker.db")
        .exec(
            "CREATE TRIGGER refuse BEFORE INSERT ON todo_items BEGIN SELECT RAISE(ABORT, 'disk full'); END");
    EXPECT_TRUE(tasks.add("Lost"));
    EXPECT_EQ(pomodoro.activeTaskID.get(), kept);
    EXPECT_EQ(today().size(), 1u);
}

}  // namespace
}  // namespace larkspan
