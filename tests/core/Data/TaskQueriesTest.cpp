#include <gtest/gtest.h>

#include "Data/Database.h"
#include "ScopedTimeZone.h"
#include "TempDir.h"

namespace larkspan {
namespace {

using namespace test;

class TaskQueries : public ::testing::Test {
protected:
    ScopedTimeZone zone{"Europe/Berlin"};
    TempDir dir;
    Database db{dir / "tracker.db"};
};

constexpr Date kJune1Late = 1717279140;  // 2024-06-01 23:59 CEST (21:59 UTC)
constexpr Date kJune2Early = kJune1Late + 120;

TEST_F(TaskQueries, TodayIsTheLocalDayOfTheGivenInstant) {
    EXPECT_EQ(Database::todayDateString(kJune1Late), "2024-06-01");
    EXPECT_EQ(Database::todayDateString(kJune2Early), "2024-06-02");
    EXPECT_EQ(Database::todayDateString(std::numeric_limits<double>::quiet_NaN()), "1970-01-01");

    // Each day starts with an empty list.
    const auto first = db.insertTodo("Write report", kJune1Late);
    const auto second = db.insertTodo("Call back", kJune1Late);
    EXPECT_EQ(db.fetchTodayTodos(kJune1Late),
              (std::vector<TodoItem>{{first, "Write report", 0, false, "2024-06-01", 0},
                                     {second, "Call back", 0, false, "2024-06-01", 0}}));
    EXPECT_TRUE(db.fetchTodayTodos(kJune2Early).empty());
}

TEST_F(TaskQueries, TasksToggleCountRetitleAndDeleteAndClearingTouchesTodayOnly) {
    const auto id = db.insertTodo("Draft", kJune1Late);
    db.toggleTodoComplete(id);
    db.toggleTodoComplete(id);
    db.incrementTodoPomo(id);
    db.incrementTodoPomo(id);
    db.updateTodoTitle(id, "Final");
    EXPECT_EQ(db.fetchTodayTodos(kJune1Late).at(0), (TodoItem{id, "Final", 2, false, "2024-06-01", 0}));
    db.deleteTodo(id);
    EXPECT_TRUE(db.fetchTodayTodos(kJune1Late).empty());

    const auto yesterday = db.insertTodo("old", kJune1Late);
    db.toggleTodoComplete(yesterday);
    const auto done = db.insertTodo("done", kJune2Early);
    const auto open = db.insertTodo("open", kJune2Early);
    db.toggleTodoComplete(done);
    db.deleteCompletedTodos(kJune2Early);
    ASSERT_EQ(db.fetchTodayTodos(kJune2Early).size(), 1u);
    EXPECT_EQ(db.fetchTodayTodos(kJune2Early).at(0).id, open);
    EXPECT_EQ(db.fetchTodayTodos(kJune1Late).at(0).id, yesterday);
}

TEST_F(TaskQueries, DailyPomoCountsGrowPerDayAndReadOverInclusiveRanges) {
    db.incrementDailyPomoCount(kJune1Late);
    db.incrementDailyPomoCount(kJune2Early);
    db.incrementDailyPomoCount(kJune2Early + 3600);
    db.incrementDailyPomoCount(kJune2Early + 5 * 86400);  // 2024-06-07
    EXPECT_EQ(db.fetchDailyPomoCounts(kJune2Early, kJune2Early),
              (std::map<std::string, int>{{"2024-06-02", 2}}));
    // Any instant of a day stands for the whole day, at both ends.
    EXPECT_EQ(db.fetchDailyPomoCounts(kJune1Late, kJune2Early + 5 * 86400 + 3600),
              (std::map<std::string, int>{{"2024-06-01", 1}, {"2024-06-02", 2}, {"2024-06-07", 1}}));
    EXPECT_TRUE(db.fetchDailyPomoCounts(kJune2Early + 86400, kJune2Early + 4 * 86400).empty());
}

}  // namespace
}  // namespace larkspan
