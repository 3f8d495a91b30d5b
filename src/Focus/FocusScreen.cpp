#include "Focus/FocusScreen.h"

#include <algorithm>
#include <cmath>

namespace larkspan {

std::string todayCountText(std::int64_t todayCount) {
    return std::to_string(todayCount) + " pomodoros today";
}

std::optional<std::string> todayTimeText(std::int64_t todayCount, std::int64_t focusMinutes) {
    if (todayCount <= 0)
        return std::nullopt;
    return "\u2248 " + std::to_string(todayCount * focusMinutes) + "m focused";
}

FocusButtons focusButtons(PomodoroTimer::RunState state) {
    const bool running = state == PomodoroTimer::RunState::running;
    const bool started = state != PomodoroTimer::RunState::idle;
    return FocusButtons{started, running ? "Pause" : "Start", running, started};
}

std::vector<bool> cycleDots(std::int64_t sessionsBeforeLongBreak, std::int64_t dotsFilled) {
    const auto count =
        static_cast<std::size_t>(std::clamp<std::int64_t>(sessionsBeforeLongBreak, 0, kMaxCycleDots));
    std::vector<bool> dots(count);
    for (std::size_t i = 0; i < count; ++i)
        dots[i] = static_cast<std::int64_t>(i) < dotsFilled;
    return dots;
}

std::string cycleDotsName(std::int64_t sessionsBeforeLongBreak, std::int64_t dotsFilled) {
    return std::to_string(std::clamp<std::int64_t>(dotsFilled, 0, sessionsBeforeLongBreak)) + " of " +
           std::to_string(sessionsBeforeLongBreak) + " sessions before a long break";
}

std::string clockName(PomodoroTimer::Mode mode, const std::string& displayTime, double progress) {
    const auto percent = static_cast<int>(std::lround(100 * std::clamp(progress, 0.0, 1.0)));
    return std::string(rawValue(mode)) + ", " + displayTime + " left, " + std::to_string(percent) + " % done";
}

Published<std::int64_t>& settingField(PomodoroTimer& timer, TimerSetting setting) {
    switch (setting) {
        case TimerSetting::shortBreakMinutes:
            return timer.shortBreakMinutes;
        case TimerSetting::longBreakMinutes:
            return timer.longBreakMinutes;
        case TimerSetting::sessionsBeforeLongBreak:
            return timer.sessionsBeforeLongBreak;
        case TimerSetting::focusMinutes:
            break;
    }
    return timer.focusMinutes;
}

}  // namespace larkspan
