// The present moment. The core never reads the system clock itself: every "now" comes from a
// Clock, so tests can pin it and move it.
#pragma once

#include <cstdint>

namespace larkspan {

using Date = double;  // seconds since 1970-01-01 00:00 UTC

class Clock {
public:
    virtual ~Clock() = default;
    virtual Date now() const = 0;
};

// The real wall clock. It may jump (NTP, the user setting the time); callers must cope.
class SystemClock final : public Clock {
public:
    Date now() const override;
};

// Whole seconds from `start` to `end`, truncated toward zero; saturates on absurd spans and gives 0
// for NaN, so a clock that jumps never makes undefined arithmetic.
std::int64_t wholeSecondsBetween(Date start, Date end);

}  // namespace larkspan
