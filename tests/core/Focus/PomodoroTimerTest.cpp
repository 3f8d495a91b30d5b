#include "Focus/PomodoroTimer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "LocalInstant.h"
#include "ManualClock.h"
#include "ManualTimerHub.h"
#include "MemoryKeyValueStore.h"
#include "Platform/LocalDay.h"
#include "RecordingSoundPlayer.h"
#include "ScopedTimeZone.h"

namespace larkspan {
namespace {

using test::ManualClock;
using test::ManualTimerHub;
using test::MemoryKeyValueStore;
using test::RecordingSoundPlayer;
using Mode = PomodoroTimer::Mode;
using RunState = PomodoroTimer::RunState;
using Sounds = std::vector<std::string>;

// A timer's seams, all fakes; ticks come only as the test moves the hub.
struct Rig {
    ManualClock clock;
    ManualTimerHub hub{clock};
    MemoryKeyValueStore defaults;
    RecordingSoundPlayer sounds;

    // A timer made now; a second one over the same defaults stands for a restart.
    std::unique_ptr<PomodoroTimer> make() {
        return std::make_unique<PomodoroTimer>(clock, defaults, sounds, hub);
    }

    // Starts the current session and lets its ticks run it to the end.
    void runToEnd(PomodoroTimer& timer) {
        timer.start();
        hub.advance(static_cast<double>(timer.secondsLeft.get()) + 1);
    }
};

// Local days are taken in a zone three hours east of UTC, so a day that is wrongly taken in UTC
// shows up around local midnight.
class PomodoroTimerTest : public ::testing::Test, protected Rig {
private:
    test::ScopedTimeZone zone_{"<+03>-3"};
};

TEST_F(PomodoroTimerTest, EveryTransitionOfTheStateTable) {
    using Event = void (*)(Rig&, PomodoroTimer&);
    const Event start = [](Rig&, PomodoroTimer& t) { t.start(); };
    const Event pause = [](Rig&, PomodoroTimer& t) { t.pause(); };
    const Event stop = [](Rig&, PomodoroTimer& t) { t.stop(); };
    const Event skip = [](Rig&, PomodoroTimer& t) { t.skip(); };
    const Event switchToLongBreak = [](Rig&, PomodoroTimer& t) { t.switchMode(Mode::longBreak); };
    const Event tick = [](Rig& r, PomodoroTimer&) { r.hub.advance(1); };
    const Event tickToZero = [](Rig& r, PomodoroTimer& t) {
        r.hub.advance(static_cast<double>(t.secondsLeft.get()));
    };
    struct Row {
        const char* name;
        RunState from;
        Mode fromMode;
        Event event;
        RunState to;
        Mode mode;
        std::int64_t todayCount;  // 2 when the count was not reloaded, 7 when it was
        std::int64_t sessionInCycle;
        std::int64_t secondsLeft;  // an idle timer shows its mode's whole duration
        Sounds sounds;
    };
    using enum RunState;
    using enum Mode;
    // clang-format off
    const Row rows[] = {
        {"start from idle",            idle,    focus,      start,             running, focus,      7, 0, 1500, {"Tink"}},
        {"resume",                     paused,  focus,      start,             running, focus,      7, 0, 1490, {"Tink"}},
        {"start while running",        running, focus,      start,             running, focus,      2, 0, 1490, {}},
        {"pause while running",        running, focus,      pause,             paused,  focus,      2, 0, 1490, {"Pop"}},
        // stop and skip sound even from idle
        {"stop while idle",            idle,    focus,      stop,              idle,    focus,      2, 0, 1500, {"Funk"}},
        {"stop while running",         running, shortBreak, stop,              idle,    shortBreak, 2, 0,  300, {"Funk"}},
        {"skip while idle",            idle,    focus,      skip,              idle,    shortBreak, 2, 0,  300, {"Funk"}},
        {"skip while running",         running, longBreak,  skip,              idle,    focus,      2, 0, 1500, {"Funk"}},
        {"skip while paused",          paused,  shortBreak, skip,              idle,    focus,      2, 0, 1500, {"Funk"}},
        {"switch while idle",          idle,    focus,      switchToLongBreak, idle,    longBreak,  2, 0,  900, {}},
        {"switch to the running mode", running, longBreak,  switchToLongBreak, idle,    longBreak,  2, 0,  900, {}},
        {"tick with time left",        running, focus,      tick,              running, focus,      2, 0, 1489, {}},
        {"focus runs out",             running, focus,      tickToZero,        idle,    shortBreak, 3, 1,  300, {"Glass"}},
        {"break runs out",             running, shortBreak, tickToZero,        idle,    focus,      2, 0, 1500, {"Ping"}},
    };
    // clang-format on

    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Rig rig;
        rig.defaults.setText("pomo_date", localDayString(rig.clock.now()));
        rig.defaults.setInteger("pomo_count", 2);
        auto timer = rig.make();
        timer->switchMode(row.fromMode);
        if (row.from != idle) {
            timer->start();
            rig.hub.advance(10);
        }
        if (row.from == paused)
            timer->pause();
        rig.sounds.played.clear();
        rig.defaults.setInteger("pomo_count", 7);  // filed meanwhile; only a start reloads it

        row.event(rig, *timer);

        EXPECT_EQ(timer->runState.get(), row.to);
        EXPECT_EQ(timer->mode.get(), row.mode);
        EXPECT_EQ(std::tuple(timer->todayCount.get(), timer->sessionInCycle.get(), timer->secondsLeft.get()),
                  std::tuple(row.todayCount, row.sessionInCycle, row.secondsLeft));
        EXPECT_EQ(rig.sounds.played, row.sounds);
        EXPECT_EQ(rig.hub.activeCount(), row.to == running ? 1U : 0U);
    }
}

TEST_F(PomodoroTimerTest, TheRemainderSurvivesPausesNewMinutesAndClockJumps) {
    auto timer = make();
    std::vector<std::int64_t> published;
    auto subscription = timer->secondsLeft.subscribe([&](const std::int64_t& v) { published.push_back(v); });
    std::vector<Mode> finished;
    timer->onSessionComplete = [&](Mode mode, std::optional<std::int64_t>) { finished.push_back(mode); };
    timer->start();
    hub.advance(266);
    // Paused, the remainder survives a new duration: the time used is taken against it.
    timer->pause();
    hub.advance(1000);
    timer->focusMinutes.set(30);
    timer->applySettings();
    EXPECT_EQ(timer->secondsLeft.get(), 1234);

    timer->start();
    published.clear();
    hub.advance(0.5);  // the first tick computes the same remainder
    hub.advance(0.5);
    // Every tick publishes, an unchanged value too.
    EXPECT_EQ(published, (std::vector<std::int64_t>{1234, 1233}));
    EXPECT_EQ(sounds.played, (Sounds{"Tink", "Pop", "Tink"}));

    clock.advance(-600);  // a clock set back gives more than the whole duration back
    hub.fireAll();
    EXPECT_EQ(timer->secondsLeft.get(), 1833);
    EXPECT_LT(timer->progress(), 0);
    clock.advance(600);

    // Running, the next tick shows the new duration minus the 567 whole seconds used…
    timer->focusMinutes.set(10);
    hub.advance(0.5);
    EXPECT_EQ(timer->secondsLeft.get(), 33);
    // …and completes the session when nothing is left of it.
    timer->focusMinutes.set(5);
    hub.advance(0.5);
    EXPECT_EQ(finished, std::vector<Mode>{Mode::focus});
}

TEST_F(PomodoroTimerTest, FirstTickAfterSleepingThroughTheEndCompletesTheSession) {
    auto timer = make();
    timer->activeTaskID.set(42);
    std::vector<std::pair<Mode, std::optional<std::int64_t>>> calls;
    timer->onSessionComplete = [&](Mode mode, std::optional<std::int64_t> task) {
        // By now the timer has moved on and filed the count.
        EXPECT_EQ(timer->mode.get(), Mode::shortBreak);
        EXPECT_EQ(defaults.integer("pomo_count"), 1);
        calls.emplace_back(mode, task);
    };
    timer->start();
    hub.advance(60);
    clock.advance(3 * 3600);  // asleep: no ticks
    EXPECT_TRUE(calls.empty());

    hub.fireAll();
    EXPECT_EQ(calls, (std::vector<std::pair<Mode, std::optional<std::int64_t>>>{{Mode::focus, 42}}));
    EXPECT_EQ(timer->sessionInCycle.get(), 1);
    EXPECT_EQ(hub.activeCount(), 0U);
    EXPECT_EQ(sounds.played, (Sounds{"Tink", "Glass"}));
}

TEST_F(PomodoroTimerTest, OnlyACompletedFocusSessionEarnsTheLongBreak) {
    auto timer = make();
    timer->sessionsBeforeLongBreak.set(3);
    for (std::int64_t n = 1; n <= 3; ++n) {
        EXPECT_EQ(timer->mode.get(), Mode::focus);
        runToEnd(*timer);
        EXPECT_EQ(timer->sessionInCycle.get(), n % 3);
        runToEnd(*timer);
    }
    EXPECT_EQ(timer->todayCount.get(), 3);
    // At the limit a skip earns nothing and switching modes keeps the cycle; a limit lowered below
    // the count reached takes effect at the very next completion.
    runToEnd(*timer);
    runToEnd(*timer);
    timer->sessionsBeforeLongBreak.set(1);
    timer->start();
    hub.advance(100);
    timer->skip();
    EXPECT_EQ(timer->mode.get(), Mode::shortBreak);
    timer->switchMode(Mode::focus);
    runToEnd(*timer);
    EXPECT_EQ(timer->mode.get(), Mode::longBreak);
    EXPECT_EQ(timer->sessionInCycle.get(), 0);
    EXPECT_EQ(timer->todayCount.get(), 5);
}

TEST_F(PomodoroTimerTest, MidnightIsNoticedAtTheNextStartAndTheCompletionCountsForTheNewDay) {
    clock.set(test::localInstant(2026, 3, 14, 23, 50));
    defaults.setText("pomo_date", "2026-03-14");
    defaults.setInteger("pomo_count", 5);
    auto timer = make();
    timer->start();
    hub.advance(60);
    timer->pause();

    clock.set(test::localInstant(2026, 3, 15, 0, 30));  // still the 14th in UTC
    EXPECT_EQ(timer->todayCount.get(), 5);
    timer->start();
    EXPECT_EQ(timer->todayCount.get(), 0);
    hub.advance(static_cast<double>(timer->secondsLeft.get()));
    EXPECT_EQ(timer->todayCount.get(), 1);
    EXPECT_EQ(defaults.integer("pomo_count"), 1);
    EXPECT_EQ(defaults.text("pomo_date"), "2026-03-15");
}

TEST_F(PomodoroTimerTest, StoredValuesOutOfRangeOrWithoutTheirDayKeepTheDefaults) {
    defaults.setInteger("pomo_count", 9);  // no day stored with it
    defaults.setInteger("pomo_focus", 0);
    defaults.setInteger("pomo_short", -5);
    defaults.setText("pomo_long", "20");
    defaults.setInteger("pomo_cycle", 6);
    auto timer = make();
    // Short and long break, cycle, seconds left and today's count.
    EXPECT_EQ(
        std::tuple(timer->shortBreakMinutes.get(), timer->longBreakMinutes.get(),
                   timer->sessionsBeforeLongBreak.get(), timer->secondsLeft.get(), timer->todayCount.get()),
        std::tuple(5, 15, 6, 1500, 0));

    // Applied settings come back after a restart.
    timer->focusMinutes.set(50);
    timer->applySettings();
    EXPECT_EQ(make()->secondsLeft.get(), 3000);
}

TEST_F(PomodoroTimerTest, AbsurdSettingsAndClockJumpsStayDefined) {
    constexpr std::int64_t huge = std::numeric_limits<std::int64_t>::max();
    defaults.setInteger("pomo_focus", huge);
    defaults.setText("pomo_date", localDayString(clock.now()));
    defaults.setInteger("pomo_count", huge);
    auto timer = make();
    EXPECT_EQ(timer->secondsLeft.get(), huge);  // minutes × 60 saturates
    EXPECT_FALSE(timer->displayTime().empty());

    timer->start();
    clock.set(-1e300);  // far behind the start
    hub.fireAll();
    EXPECT_EQ(timer->secondsLeft.get(), huge);
    clock.set(std::nan(""));
    hub.fireAll();
    EXPECT_EQ(timer->runState.get(), RunState::running);
    clock.set(1e300);  // far beyond any end, and beyond any calendar
    hub.fireAll();
    EXPECT_EQ(timer->runState.get(), RunState::idle);
    EXPECT_EQ(timer->todayCount.get(), huge);
}

}  // namespace
}  // namespace larkspan
