// Periodic ticks on the main thread.
#pragma once

#include <functional>
#include <memory>

namespace larkspan {

// Keeps a scheduled timer alive; destroying it cancels the timer.
class TimerHandle {
public:
    virtual ~TimerHandle() = default;
};

class RepeatingTimer {
public:
    virtual ~RepeatingTimer() = default;
    // Calls `tick` every `interval` seconds on the main thread until the handle is destroyed.
    virtual std::unique_ptr<TimerHandle> schedule(double interval, std::function<void()> tick) = 0;
};

}  // namespace larkspan
