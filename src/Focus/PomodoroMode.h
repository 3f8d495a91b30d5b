// The three kinds of session the Pomodoro timer counts down, with what each is called on screen,
// its colour and its default length. The raw value doubles as the label the user reads.
#pragma once

#include <array>
#include <cstdint>

#include "Classification/Category.h"

namespace larkspan {

enum class PomodoroMode { focus, shortBreak, longBreak };

// Every mode in the order the mode selector lists them.
inline constexpr std::array<PomodoroMode, 3> kAllPomodoroModes{PomodoroMode::focus, PomodoroMode::shortBreak,
                                                               PomodoroMode::longBreak};

// "Focus", "Short Break" or "Long Break".
const char* rawValue(PomodoroMode mode);

// The mode's colour on the clock ring, the selector and the cycle dots.
Color color(PomodoroMode mode);

// Minutes a session of the mode lasts until the user changes it: 25, 5 and 15.
std::int64_t defaultMinutes(PomodoroMode mode);

}  // namespace larkspan
