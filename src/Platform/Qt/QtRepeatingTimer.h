// RepeatingTimer over QTimer. Timers are precise (the Pomodoro tick and the sampling period must
// not drift by coarse-timer slack) and live on the thread that schedules them: the main thread.
#pragma once

#include "Platform/RepeatingTimer.h"

namespace larkspan {

class QtRepeatingTimer final : public RepeatingTimer {
public:
    std::unique_ptr<TimerHandle> schedule(double interval, std::function<void()> tick) override;
};

}  // namespace larkspan
