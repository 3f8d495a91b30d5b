// A clock the test sets and moves by hand.
#pragma once

#include "Platform/Clock.h"

namespace larkspan::test {

class ManualClock final : public Clock {
public:
    explicit ManualClock(Date start = 1'700'000'000.0) : now_(start) {}
    Date now() const override { return now_; }
    void set(Date value) { now_ = value; }
    void advance(double seconds) { now_ += seconds; }

private:
    Date now_;
};

}  // namespace larkspan::test
