// A clock the test sets and moves by hand. Atomic, because work on a background queue may read it
// while the test moves it.
#pragma once

#include <atomic>

#include "Platform/Clock.h"

namespace larkspan::test {

class ManualClock final : public Clock {
public:
    explicit ManualClock(Date start = 1'700'000'000.0) : now_(start) {}
    Date now() const override { return now_.load(); }
    void set(Date value) { now_.store(value); }
    void advance(double seconds) { now_.store(now_.load() + seconds); }

private:
    std::atomic<Date> now_;
};

}  // namespace larkspan::test
