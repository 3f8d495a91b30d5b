// The Pomodoro timer: counts down focus sessions and breaks, picks the mode that follows, keeps the
// day's count of finished focus sessions in the user defaults and reports every finished session
// through one callback. It knows no database and no notifications; the owner of the callback does.
//
// The countdown follows the wall clock, not the number of ticks: a running session keeps the moment
// it would have had to start for the present remainder to be true, and each 0.5-second tick
// recomputes the seconds left from it. A sleeping machine or a late tick costs no time; the first
// tick after it shows the true remainder or completes the session.
//
//   start         tick tick tick ...  (pause)          start        tick ...
//   |-- used ---->|                    |  no ticks      |<- used ---|
//   sessionStart = now - used          pausedLeft kept  sessionStart = now - (duration - pausedLeft)
//
// One instance lives for the whole run, on the main thread only; there are no locks.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "Focus/PomodoroMode.h"
#include "Platform/Clock.h"
#include "Platform/KeyValueStore.h"
#include "Platform/Published.h"
#include "Platform/RepeatingTimer.h"
#include "Platform/SoundPlayer.h"

namespace larkspan {

class PomodoroTimer {
public:
    using Mode = PomodoroMode;
    enum class RunState { idle, running, paused };
    // Receives the mode that just ended (not the next one) and the task active when it ended.
    using SessionCompleteCallback = std::function<void(Mode, std::optional<std::int64_t>)>;

    // Loads the settings and today's count from `defaults`. The seams must outlive the timer.
    PomodoroTimer(const Clock& clock, KeyValueStore& defaults, SoundPlayer& sounds, RepeatingTimer& ticks);

    // Published state. The screens subscribe to all of it; they write only the four settings (then
    // call applySettings) and activeTaskID. Every assignment reaches the subscribers, an equal value
    // too: a running timer publishes secondsLeft twice a second.
    Published<Mode> mode{Mode::focus};  // counting now, or at the next start
    Published<RunState> runState{RunState::idle};
    Published<std::int64_t> secondsLeft{1500};            // seconds on the clock
    Published<std::int64_t> sessionInCycle{0};            // focus sessions since the last long break
    Published<std::int64_t> todayCount{0};                // focus sessions completed today
    Published<std::optional<std::int64_t>> activeTaskID;  // task a completing focus session credits
    Published<std::int64_t> focusMinutes{defaultMinutes(Mode::focus)};
    Published<std::int64_t> shortBreakMinutes{defaultMinutes(Mode::shortBreak)};
    Published<std::int64_t> longBreakMinutes{defaultMinutes(Mode::longBreak)};
    Published<std::int64_t> sessionsBeforeLongBreak{4};  // completed focus sessions that earn a long break

    // Called synchronously from the tick that completes a session, after the timer has moved on to
    // the next mode and played its sound. May be empty.
    SessionCompleteCallback onSessionComplete;

    // Starts from idle with the mode's full duration, or resumes a pause with its remainder; reloads
    // today's count (a new day is noticed here). Does nothing while running.
    void start();
    // Keeps the remainder and stops the ticks. Does nothing unless running.
    void pause();
    // Abandons the session in any state; the mode and the cycle stay.
    void stop();
    // Abandons the session in any state and moves to the next mode. A skipped session never counts
    // and never earns a long break.
    void skip();
    // Abandons the session in any state and rests idle in `newMode`, even when it is the current one.
    void switchMode(Mode newMode);

    // Writes the four settings to the defaults.
    void saveSettings();
    // Saves, then shows the full new duration on an idle clock; a running or paused clock takes a
    // new duration at its next tick or resume instead.
    void applySettings();
    // Sets today's count to 0 and saves it.
    void resetTodayCount();

    // The local calendar day of the clock's present moment as "yyyy-MM-dd" (TZ honoured); empty for
    // a moment the C library cannot place in a calendar.
    static std::string todayString(const Clock& clock);

    // The clock as minutes and seconds, "%02d:%02d", minutes not capped: 6000 seconds read "100:00".
    std::string displayTime() const;
    // Fraction of the present duration used: 0 when idle, 1 at the end, negative after the wall
    // clock was set back; 0 when the duration is not positive.
    double progress() const;
    // Filled cycle dots: sessionInCycle itself, unclamped.
    std::int64_t dotsFilled() const { return sessionInCycle.get(); }
    Color modeColor() const { return color(mode.get()); }

private:
    void loadSettings();
    void loadTodayCount();
    void saveTodayCount();
    // Minutes of the current mode × 60, saturating instead of overflowing on absurd settings.
    std::int64_t currentDurationSecs() const;
    void beginTicking();
    void tick();
    void complete();
    void advanceMode(bool afterCompleted);

    const Clock& clock_;
    KeyValueStore& defaults_;
    SoundPlayer& sounds_;
    RepeatingTimer& ticks_;

    // The live ticker while running; destroying it cancels the ticks. Owned here, so a tick never
    // reaches a destroyed timer.
    std::unique_ptr<TimerHandle> timerSub_;
    // When a session of the present duration would have begun for the present remainder to be true.
    // Set by start; cleared when a session ends or is abandoned; left stale by a pause.
    std::optional<Date> sessionStart_;
    std::int64_t pausedLeft_ = 0;  // seconds left at the pause; the whole duration at a fresh start
};

}  // namespace larkspan
