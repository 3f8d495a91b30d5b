#include "Focus/FocusTasks.h"

#include <algorithm>

#include "Platform/TrimBlanks.h"

namespace larkspan {

std::optional<std::string> taskTitleToSave(std::string_view typed) {
    const std::string_view trimmed = trimBlanks(typed);
    if (trimmed.empty())
        return std::nullopt;
    return std::string(trimmed);
}

std::optional<std::string> activeTaskTitle(PomodoroTimer::RunState state,
                                           std::optional<std::int64_t> activeTaskID,
                                           const std::vector<TodoItem>& tasks) {
    if (state != PomodoroTimer::RunState::running || !activeTaskID)
        return std::nullopt;
    const auto found = std::find_if(tasks.begin(), tasks.end(),
                                    [&](const TodoItem& task) { return task.id == *activeTaskID; });
    if (found == tasks.end())
        return std::nullopt;
    return found->title;
}

bool anyCompleted(const std::vector<TodoItem>& tasks) {
    return std::any_of(tasks.begin(), tasks.end(), [](const TodoItem& task) { return task.isCompleted; });
}

FocusTasks::FocusTasks(Database& database, PomodoroTimer& timer, const Clock& clock)
    : database_(database), timer_(timer), clock_(clock) {}

bool FocusTasks::add(std::string_view typed) {
    const auto title = taskTitleToSave(typed);
    if (!title)
        return false;
    try {
        timer_.activeTaskID.set(database_.insertTodo(*title, clock_.now()));
    } catch (const DBError&) {
        // No row, so no active task either; the list will show what the store holds.
    }
    return true;
}

void FocusTasks::select(std::int64_t id) {
    if (timer_.activeTaskID.get() == id)
        timer_.activeTaskID.set(std::nullopt);
    else
        timer_.activeTaskID.set(id);
}

void FocusTasks::toggleDone(std::int64_t id) {
    database_.toggleTodoComplete(id);
}

void FocusTasks::remove(std::int64_t id) {
    if (timer_.activeTaskID.get() == id)
        timer_.activeTaskID.set(std::nullopt);
    database_.deleteTodo(id);
}

void FocusTasks::rename(std::int64_t id, std::string_view typed) {
    if (const auto title = taskTitleToSave(typed))
        database_.updateTodoTitle(id, *title);
}

void FocusTasks::clearDone() {
    database_.deleteCompletedTodos(clock_.now());
}

}  // namespace larkspan
