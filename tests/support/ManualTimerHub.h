// Repeating timers driven by a ManualClock: `advance` moves the clock in steps and fires each timer
// as often as its interval was crossed, in time order, as a real run loop would.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>

#include "ManualClock.h"
#include "Platform/RepeatingTimer.h"

namespace larkspan::test {

class ManualTimerHub final : public RepeatingTimer {
public:
    explicit ManualTimerHub(ManualClock& clock) : clock_(clock), timers_(std::make_shared<Timers>()) {}

    std::unique_ptr<TimerHandle> schedule(double interval, std::function<void()> tick) override;

    // Moves the clock forward by `seconds`, firing every timer whose next fire time is reached.
    void advance(double seconds);
    // Fires every live timer once, now, without moving the clock.
    void fireAll();
    std::size_t activeCount() const { return timers_->size(); }

private:
    struct Timer {
        double interval;
        Date nextFire;
        std::function<void()> tick;
    };
    using Timers = std::map<std::uint64_t, Timer>;

    ManualClock& clock_;
    std::shared_ptr<Timers> timers_;
    std::uint64_t nextId_ = 0;
};

}  // namespace larkspan::test
