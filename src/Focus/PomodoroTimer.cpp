#include "Focus/PomodoroTimer.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <utility>

#include "Platform/LocalDay.h"

namespace larkspan {

namespace {

constexpr double kTickInterval = 0.5;  // seconds; the clock changes once a second, seen at most 0.5 s late

constexpr const char* kFocusKey = "pomo_focus";  // minutes
constexpr const char* kShortKey = "pomo_short";  // minutes
constexpr const char* kLongKey = "pomo_long";    // minutes
constexpr const char* kCycleKey = "pomo_cycle";  // focus sessions to a long break
constexpr const char* kCountKey = "pomo_count";  // focus sessions completed on the day below
constexpr const char* kDateKey = "pomo_date";    // "yyyy-MM-dd", local

constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();

// Settings have no upper bound and the wall clock may jump arbitrarily far, so the arithmetic on
// them saturates rather than overflowing.
std::int64_t saturatingAdd(std::int64_t a, std::int64_t b) {
    std::int64_t sum = 0;
    if (__builtin_add_overflow(a, b, &sum))
        return b > 0 ? kMax : kMin;
    return sum;
}

std::int64_t saturatingSub(std::int64_t a, std::int64_t b) {
    std::int64_t difference = 0;
    if (__builtin_sub_overflow(a, b, &difference))
        return b < 0 ? kMax : kMin;
    return difference;
}

std::int64_t saturatingMul(std::int64_t a, std::int64_t b) {
    std::int64_t product = 0;
    if (__builtin_mul_overflow(a, b, &product))
        return (a < 0) != (b < 0) ? kMin : kMax;
    return product;
}

}  // namespace

PomodoroTimer::PomodoroTimer(const Clock& clock, KeyValueStore& defaults, SoundPlayer& sounds,
                             RepeatingTimer& ticks)
    : clock_(clock), defaults_(defaults), sounds_(sounds), ticks_(ticks) {
    loadSettings();
    loadTodayCount();
    secondsLeft.set(saturatingMul(focusMinutes.get(), 60));
}

void PomodoroTimer::start() {
    if (runState.get() == RunState::running)
        return;
    loadTodayCount();
    if (runState.get() == RunState::idle) {
        pausedLeft_ = currentDurationSecs();
        secondsLeft.set(pausedLeft_);
    }
    // Measured against the present duration, so a remainder kept over a change of the minutes
    // survives the resume exactly.
    const std::int64_t used = saturatingSub(currentDurationSecs(), pausedLeft_);
    sessionStart_ = clock_.now() - static_cast<double>(used);
    runState.set(RunState::running);
    beginTicking();
    sounds_.play("Tink");
}

void PomodoroTimer::pause() {
    if (runState.get() != RunState::running)
        return;
    pausedLeft_ = secondsLeft.get();
    runState.set(RunState::paused);
    timerSub_.reset();
    sounds_.play("Pop");
}

void PomodoroTimer::stop() {
    timerSub_.reset();
    runState.set(RunState::idle);
    sessionStart_.reset();
    pausedLeft_ = 0;
    secondsLeft.set(currentDurationSecs());
    sounds_.play("Funk");
}

void PomodoroTimer::skip() {
    timerSub_.reset();
    sessionStart_.reset();
    pausedLeft_ = 0;
    advanceMode(false);
    runState.set(RunState::idle);
    secondsLeft.set(currentDurationSecs());
    sounds_.play("Funk");
}

void PomodoroTimer::switchMode(Mode newMode) {
    timerSub_.reset();
    mode.set(newMode);
    runState.set(RunState::idle);
    sessionStart_.reset();
    pausedLeft_ = 0;
    secondsLeft.set(currentDurationSecs());
}

void PomodoroTimer::saveSettings() {
    defaults_.setInteger(kFocusKey, focusMinutes.get());
    defaults_.setInteger(kShortKey, shortBreakMinutes.get());
    defaults_.setInteger(kLongKey, longBreakMinutes.get());
    defaults_.setInteger(kCycleKey, sessionsBeforeLongBreak.get());
}

void PomodoroTimer::applySettings() {
    saveSettings();
    if (runState.get() == RunState::idle)
        secondsLeft.set(currentDurationSecs());
}

void PomodoroTimer::resetTodayCount() {
    todayCount.set(0);
    saveTodayCount();
}

std::string PomodoroTimer::displayTime() const {
    const std::int64_t seconds = secondsLeft.get();
    char text[48];
    std::snprintf(text, sizeof text, "%02lld:%02lld", static_cast<long long>(seconds / 60),
                  static_cast<long long>(seconds % 60));
    return text;
}

double PomodoroTimer::progress() const {
    const std::int64_t duration = currentDurationSecs();
    if (duration <= 0)
        return 0;
    return 1.0 - static_cast<double>(secondsLeft.get()) / static_cast<double>(duration);
}

void PomodoroTimer::loadSettings() {
    // A setting that is absent, not an integer, zero or negative keeps the default.
    const std::pair<const char*, Published<std::int64_t>*> settings[] = {
        {kFocusKey, &focusMinutes},
        {kShortKey, &shortBreakMinutes},
        {kLongKey, &longBreakMinutes},
        {kCycleKey, &sessionsBeforeLongBreak},
    };
    for (const auto& [key, field] : settings) {
        const auto stored = defaults_.integer(key);
        if (stored && *stored > 0)
            field->set(*stored);
    }
}

void PomodoroTimer::loadTodayCount() {
    // A count filed under any other day, or under none, belongs to no day the user sees now.
    const auto storedDay = defaults_.text(kDateKey);
    if (storedDay && *storedDay == localDayString(clock_.now())) {
        todayCount.set(defaults_.integer(kCountKey).value_or(0));
    } else {
        todayCount.set(0);
    }
}

void PomodoroTimer::saveTodayCount() {
    defaults_.setInteger(kCountKey, todayCount.get());
    defaults_.setText(kDateKey, localDayString(clock_.now()));
}

std::int64_t PomodoroTimer::currentDurationSecs() const {
    switch (mode.get()) {
        case Mode::shortBreak:
            return saturatingMul(shortBreakMinutes.get(), 60);
        case Mode::longBreak:
            return saturatingMul(longBreakMinutes.get(), 60);
        case Mode::focus:
            break;
    }
    return saturatingMul(focusMinutes.get(), 60);
}

void PomodoroTimer::beginTicking() {
    // The handle is owned by this object, so destroying the timer cancels the ticks first and a
    // tick never reaches a destroyed timer. The first tick comes one interval after the start.
    timerSub_ = ticks_.schedule(kTickInterval, [this] { tick(); });
}

void PomodoroTimer::tick() {
    if (!sessionStart_ || runState.get() != RunState::running)
        return;
    // The duration is read afresh, so a change of the minutes reaches a running clock here.
    const std::int64_t elapsed = wholeSecondsBetween(*sessionStart_, clock_.now());
    const std::int64_t left = std::max<std::int64_t>(0, saturatingSub(currentDurationSecs(), elapsed));
    secondsLeft.set(left);
    if (left == 0)
        complete();
}

void PomodoroTimer::complete() {
    timerSub_.reset();
    const Mode finished = mode.get();
    const std::optional<std::int64_t> task = activeTaskID.get();
    if (finished == Mode::focus) {
        // Counted before the mode advances, so the n-th of n sessions is the one that earns the
        // long break.
        todayCount.set(saturatingAdd(todayCount.get(), 1));
        saveTodayCount();
        sessionInCycle.set(saturatingAdd(sessionInCycle.get(), 1));
    }
    advanceMode(true);
    runState.set(RunState::idle);
    sessionStart_.reset();
    pausedLeft_ = 0;
    secondsLeft.set(currentDurationSecs());
    sounds_.play(finished == Mode::focus ? "Glass" : "Ping");
    if (onSessionComplete)
        onSessionComplete(finished, task);
}

void PomodoroTimer::advanceMode(bool afterCompleted) {
    switch (mode.get()) {
        case Mode::focus:
            // At or above the limit, not only at it: a lowered limit takes effect at the next
            // completed session whatever the count has reached. A skip never earns the long break.
            if (afterCompleted && sessionInCycle.get() >= sessionsBeforeLongBreak.get()) {
                sessionInCycle.set(0);
                mode.set(Mode::longBreak);
            } else {
                mode.set(Mode::shortBreak);
            }
            break;
        case Mode::shortBreak:
        case Mode::longBreak:
            mode.set(Mode::focus);
            break;
    }
}

}  // namespace larkspan
