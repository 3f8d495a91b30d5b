// What the focus tab shows of the timer, apart from any toolkit: the fixed labels, the day's figures,
// the buttons for each run state, the cycle dots, the clock's spoken figure and the rows of the
// "Timer Settings" sheet with their bounds.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Focus/PomodoroTimer.h"

namespace larkspan {

namespace focus_text {
inline constexpr const char* header = "Focus";
inline constexpr const char* timerSettings = "Timer settings";  // the gear's tooltip
inline constexpr const char* resetCount = "Reset today's pomodoro count to 0";
inline constexpr const char* tasks = "Tasks";
inline constexpr const char* clearDone = "Clear done";
inline constexpr const char* addTask = "Add task";
inline constexpr const char* newTaskPrompt = "What are you working on?";
inline constexpr const char* add = "Add";
inline constexpr const char* cancel = "Cancel";
inline constexpr const char* emptyTasks = "Add tasks to track what you're working on";
inline constexpr const char* addFirstTask = "+ Add a task";
inline constexpr const char* taskTitlePrompt = "Task title";
inline constexpr const char* settingsTitle = "Timer Settings";
inline constexpr const char* done = "Done";
inline constexpr const char* stop = "Stop";
inline constexpr const char* skip = "Skip";
inline constexpr const char* tomato = "\U0001F345";  // the badge of a task's finished sessions
}  // namespace focus_text

// "<count> pomodoros today", for 1 too.
std::string todayCountText(std::int64_t todayCount);
// "≈ <count × minutes>m focused", from the present focus length; absent while the count is 0, and
// then the reset button is hidden as well.
std::optional<std::string> todayTimeText(std::int64_t todayCount, std::int64_t focusMinutes);

// The buttons under the clock, left to right: "Stop", the main one, "Skip". A paused timer reads
// "Stop", "Start", "Skip"; an idle one offers only "Start".
struct FocusButtons {
    bool showsStop = false;
    std::string mainLabel;  // "Pause" while running, else "Start"
    bool mainPauses = false;
    bool showsSkip = false;
    bool operator==(const FocusButtons&) const = default;
};
FocusButtons focusButtons(PomodoroTimer::RunState state);

// One dot per session before a long break, filled below `dotsFilled`. A hand-edited setting larger
// than any the sheet offers is drawn as kMaxCycleDots dots rather than a line off the screen.
inline constexpr std::int64_t kMaxCycleDots = 16;
std::vector<bool> cycleDots(std::int64_t sessionsBeforeLongBreak, std::int64_t dotsFilled);
// "<filled> of <count> sessions before a long break", what a screen reader says of the dots.
std::string cycleDotsName(std::int64_t sessionsBeforeLongBreak, std::int64_t dotsFilled);
// "<mode>, <time> left, <percent> % done", the clock's figure for a screen reader; the percentage is
// the progress clamped to 0…100.
std::string clockName(PomodoroTimer::Mode mode, const std::string& displayTime, double progress);

// The rows of the "Timer Settings" sheet, top to bottom; each stepper writes its timer field.
enum class TimerSetting { focusMinutes, shortBreakMinutes, longBreakMinutes, sessionsBeforeLongBreak };
struct TimerSettingRow {
    TimerSetting setting;
    const char* label;
    std::int64_t lowest, highest, step;
    const char* unit;
};
inline constexpr std::array<TimerSettingRow, 4> kTimerSettingRows{{
    {TimerSetting::focusMinutes, "Focus duration", 5, 90, 5, "min"},
    {TimerSetting::shortBreakMinutes, "Short break", 1, 30, 1, "min"},
    {TimerSetting::longBreakMinutes, "Long break", 5, 60, 5, "min"},
    {TimerSetting::sessionsBeforeLongBreak, "Long break after", 2, 8, 1, "sessions"},
}};
// The timer's field behind a setting.
Published<std::int64_t>& settingField(PomodoroTimer& timer, TimerSetting setting);

}  // namespace larkspan
