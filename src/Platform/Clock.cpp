#include "Platform/Clock.h"

#include <chrono>
#include <cmath>
#include <limits>

namespace larkspan {

Date SystemClock::now() const {
    using namespace std::chrono;
    return duration<double>(system_clock::now().time_since_epoch()).count();
}

std::int64_t wholeSecondsBetween(Date start, Date end) {
    const double span = std::trunc(end - start);
    constexpr double limit = 9.2e18;  // just inside the int64 range
    if (std::isnan(span)) return 0;
    if (span >= limit) return std::numeric_limits<std::int64_t>::max();
    if (span <= -limit) return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(span);
}

}  // namespace larkspan
