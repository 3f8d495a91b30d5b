#include "Focus/PomodoroMode.h"

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
            return {0.25, 0.6, 0.5};
        case PomodoroMode::longBreak:
            return {0.26, 0.47, 0.7};
        case PomodoroMode::focus:
            break;
    }
    return {0.78, 0.22, 0.22};
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
