// The focus tab's task list, apart from any toolkit: the day's tasks in the store and which of them
// is active, that is credited with the next focus session that completes while it is.
//
// Active-task rules, per action on a row:
//   add          the new task becomes active (a failed insert changes nothing)
//   select       the active task is cleared; any other task becomes active
//   toggle done  unchanged: a completed task can stay active
//   remove       cleared if it was the active task
//   rename       unchanged
//   clear done   unchanged, even when the active task was among those deleted
// An active id that points at no task of today's list does no harm: the label above the clock finds
// no title, and the store's increment touches no row.
//
// Writes run on the caller's thread (the main thread); the store orders them. Store failures are
// silent: the list shows what the store holds.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Data/Database.h"
#include "Focus/PomodoroTimer.h"
#include "Platform/Clock.h"

namespace larkspan {

// The title a typed text is stored under: without spaces and tabs at either end (line breaks
// stay); absent when nothing is left, and then "Add" is disabled and Return does nothing.
std::optional<std::string> taskTitleToSave(std::string_view typed);

// The title of the active task for the label above the clock: only while running, and only when
// the active task is among `tasks`.
std::optional<std::string> activeTaskTitle(PomodoroTimer::RunState state,
                                           std::optional<std::int64_t> activeTaskID,
                                           const std::vector<TodoItem>& tasks);

// Whether "Clear done" is offered.
bool anyCompleted(const std::vector<TodoItem>& tasks);

class FocusTasks {
public:
    // All three must outlive this object.
    FocusTasks(Database& database, PomodoroTimer& timer, const Clock& clock);

    // Stores the trimmed title for today and makes it the active task. False when the title is
    // blank; then nothing happens.
    bool add(std::string_view typed);
    void select(std::int64_t id);
    void toggleDone(std::int64_t id);
    void remove(std::int64_t id);
    // A title trimmed to nothing leaves the task as it was.
    void rename(std::int64_t id, std::string_view typed);
    void clearDone();

private:
    Database& database_;
    PomodoroTimer& timer_;
    const Clock& clock_;
};

}  // namespace larkspan
