#include "Focus/PomodoroMode.h"

#include "Classification/Palette.h"

namespace larkspan {

const char* rawValue(PomodoroMode mode) {
    switch (mode) {
        case PomodoroMode::shortBreak:
            return "Short Break";
        case PomodoroMode::longBreak:
            return "Long Break";
        case PomodoroMode::focus:
            break;
    }
    return "Focus";
}

Color color(PomodoroMode mode) {
    switch (mode) {
        case PomodoroMode::shortBreak:
            return Palette::shortBreakTeal;
        case PomodoroMode::longBreak:
            return Palette::longBreakBlue;
        case PomodoroMode::focus:
            break;
    }
    return Palette::focusRed;
}

std::int64_t defaultMinutes(PomodoroMode mode) {
    switch (mode) {
        case PomodoroMode::shortBreak:
            return 5;
        case PomodoroMode::longBreak:
            return 15;
        case PomodoroMode::focus:
            break;
    }
    return 25;
}

}  // namespace larkspan
