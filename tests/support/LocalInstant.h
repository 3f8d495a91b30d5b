// Instants written as local wall-clock times, read in the process's current time zone (pin it with
// ScopedTimeZone first). Out-of-range fields roll over as mktime normalises them, so day 32 of
// December is 1 January.
#pragma once

#include <ctime>

#include "Platform/Clock.h"

namespace larkspan::test {

inline Date localInstant(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
    std::tm parts{};
    parts.tm_year = year - 1900;
    parts.tm_mon = month - 1;
    parts.tm_mday = day;
    parts.tm_hour = hour;
    parts.tm_min = minute;
    parts.tm_sec = second;
    parts.tm_isdst = -1;
    return static_cast<Date>(std::mktime(&parts));
}

}  // namespace larkspan::test
