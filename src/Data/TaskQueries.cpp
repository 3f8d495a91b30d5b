// The statements on `todo_items` and `daily_pomo_counts`. Tasks belong to the local day on which
// they were made; "today" is the day of the instant the caller passes in, taken afresh per call, so
// each day starts with an empty list while earlier days keep their rows.
#include "Data/Database.h"
#include "Platform/LocalDay.h"

namespace larkspan {

std::string Database::todayDateString(Date now) {
    return localDayString(now);
}

std::vector<TodoItem> Database::fetchTodayTodos(Date now) {
    const std::string today = todayDateString(now);
    std::vector<TodoItem> todos;
    queryRows(
        "SELECT id, title, pomodoro_count, is_completed, created_date, sort_order FROM todo_items WHERE "
        "created_date = ? ORDER BY sort_order ASC, id ASC",
        [&](sqlite3_stmt* stmt) { bindText(stmt, 1, today); },
        [&](sqlite3_stmt* stmt) {
            todos.push_back(TodoItem{sqlite3_column_int64(stmt, 0), string(stmt, 1).value_or(""),
                                     sqlite3_column_int(stmt, 2), columnBool(stmt, 3),
                                     string(stmt, 4).value_or(""), sqlite3_column_int(stmt, 5)});
        });
    return todos;
}

std::int64_t Database::insertTodo(const std::string& title, Date now) {
    const std::string today = todayDateString(now);
    std::int64_t rowID = 0;
    runOnQueue([&] {
        run("INSERT INTO todo_items (title, created_date) VALUES (?, ?)", title, today);
        rowID = sqlite3_last_insert_rowid(db_.get());
    });
    return rowID;
}

void Database::updateTodoTitle(std::int64_t id, const std::string& title) {
    runDiscardingError("UPDATE todo_items SET title = ? WHERE id = ?", title, id);
}

void Database::toggleTodoComplete(std::int64_t id) {
    runDiscardingError("UPDATE todo_items SET is_completed = NOT is_completed WHERE id = ?", id);
}

void Database::incrementTodoPomo(std::int64_t id) {
    runDiscardingError("UPDATE todo_items SET pomodoro_count = pomodoro_count + 1 WHERE id = ?", id);
}

void Database::reorderTodo(std::int64_t id, int sortOrder) {
    runDiscardingError("UPDATE todo_items SET sort_order = ? WHERE id = ?", sortOrder, id);
}

void Database::deleteTodo(std::int64_t id) {
    runDiscardingError("DELETE FROM todo_items WHERE id = ?", id);
}

void Database::deleteCompletedTodos(Date now) {
    runDiscardingError("DELETE FROM todo_items WHERE is_completed = 1 AND created_date = ?",
                       todayDateString(now));
}

void Database::incrementDailyPomoCount(Date now) {
    runDiscardingError(
        "INSERT INTO daily_pomo_counts (date, count) VALUES (?, 1)\nON CONFLICT(date) DO UPDATE SET count = "
        "count "
        "+ 1",
        todayDateString(now));
}

std::map<std::string, int> Database::fetchDailyPomoCounts(Date from, Date to) {
    const std::string first = todayDateString(from);
    const std::string last = todayDateString(to);
    std::map<std::string, int> counts;
    queryRows(
        "SELECT date, count FROM daily_pomo_counts WHERE date >= ? AND date <= ?",
        [&](sqlite3_stmt* stmt) {
            bindText(stmt, 1, first);
            bindText(stmt, 2, last);
        },
        [&](sqlite3_stmt* stmt) {
            if (auto day = string(stmt, 0))
                counts[std::move(*day)] = sqlite3_column_int(stmt, 1);
        });
    return counts;
}

}  // namespace larkspan
