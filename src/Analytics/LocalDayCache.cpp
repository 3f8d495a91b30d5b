#include "Analytics/LocalDayCache.h"

#include <time.h>

#include <algorithm>
#include <cmath>
#include <ctime>

namespace larkspan::analytics {

namespace {

constexpr double kSecondsPerDay = 86400;
constexpr double kSecondsPerHour = 3600;
constexpr double kLimit = 1e11;  // about 3,000 years either side of 1970; far beyond any real clock

// The broken-down local time of `instant`. NaN reads as 1970 and absurd instants are clamped, so
// localtime_r always has a representable time; should it still fail, the result is 1970-01-01.
std::tm localParts(Date instant) {
    const double whole = std::isnan(instant) ? 0.0 : std::clamp(std::floor(instant), -kLimit, kLimit);
    const time_t t = static_cast<time_t>(whole);
    std::tm parts{};
    if (localtime_r(&t, &parts) == nullptr) {
        parts = std::tm{};
        parts.tm_year = 70;
        parts.tm_mday = 1;
    }
    return parts;
}

LocalDay dayFromParts(const std::tm& parts) {
    return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday};
}

// Local midnight of the day `parts` names, moved by `dayOffset` days; mktime normalises the date.
Date midnight(std::tm parts, int dayOffset) {
    parts.tm_mday += dayOffset;
    parts.tm_hour = 0;
    parts.tm_min = 0;
    parts.tm_sec = 0;
    parts.tm_isdst = -1;
    return static_cast<Date>(mktime(&parts));
}

}  // namespace

Date startOfLocalDay(Date instant) {
    return midnight(localParts(instant), 0);
}

Date startOfNextLocalDay(Date instant) {
    return midnight(localParts(instant), 1);
}

LocalDay LocalDayCache::dayOf(Date instant) {
    if (!covers(instant))
        refill(instant);
    if (covers(instant))
        return day_;
    return dayFromParts(localParts(instant));
}

int LocalDayCache::hourOf(Date instant) {
    if (!covers(instant))
        refill(instant);
    // A day of exactly 24 hours between two local midnights has one UTC offset throughout, so its
    // hours are plain multiples of 3600 from its start. Days of a clock change ask the zone.
    if (covers(instant) && end_ - start_ == kSecondsPerDay) {
        return std::clamp(static_cast<int>((instant - start_) / kSecondsPerHour), 0, 23);
    }
    return localParts(instant).tm_hour;
}

// Finds the bounds of the day of `instant` and keeps them only when they check out: both ends must
// read back as that day and their neighbours as other days. A zone whose midnight does not exist on
// some day may fail the check; that day is then answered by the zone on every call.
void LocalDayCache::refill(Date instant) {
    valid_ = false;
    const std::tm parts = localParts(instant);
    const LocalDay day = dayFromParts(parts);
    const Date start = midnight(parts, 0);
    const Date end = midnight(parts, 1);
    const auto dayAt = [](Date t) { return dayFromParts(localParts(t)); };
    if (!(start < end) || dayAt(start) != day || dayAt(end - 1) != day || dayAt(start - 1) == day ||
        dayAt(end) == day) {
        return;
    }
    day_ = day;
    start_ = start;
    end_ = end;
    valid_ = true;
}

}  // namespace larkspan::analytics
