#include "Analytics/LocalDayCache.h"

#include <algorithm>

#include "Platform/LocalDay.h"

namespace larkspan::analytics {

namespace {

constexpr double kSecondsPerDay = 86400;
constexpr double kSecondsPerHour = 3600;

// The local day of `instant`; 1970-01-01 should the zone be unable to express it.
LocalDay dayFromZone(Date instant) {
    const auto fields = localFields(instant);
    if (!fields)
        return {};
    return {fields->tm_year + 1900, fields->tm_mon + 1, fields->tm_mday};
}

}  // namespace

LocalDay LocalDayCache::dayOf(Date instant) {
    if (!covers(instant))
        refill(instant);
    if (covers(instant))
        return day_;
    return dayFromZone(instant);
}

int LocalDayCache::hourOf(Date instant) {
    if (!covers(instant))
        refill(instant);
    // A day of exactly 24 hours between two local midnights has one UTC offset throughout, so its
    // hours are plain multiples of 3600 from its start. Days of a clock change ask the zone.
    if (covers(instant) && end_ - start_ == kSecondsPerDay) {
        return std::clamp(static_cast<int>((instant - start_) / kSecondsPerHour), 0, 23);
    }
    const auto fields = localFields(instant);
    return fields ? fields->tm_hour : 0;
}

// Finds the bounds of the day of `instant` and keeps them only when they check out: both ends must
// read back as that day and their neighbours as other days. A zone whose midnight does not exist on
// some day may fail the check; that day is then answered by the zone on every call.
void LocalDayCache::refill(Date instant) {
    valid_ = false;
    const LocalDay day = dayFromZone(instant);
    const Date start = startOfLocalDay(instant);
    const Date end = startOfNextLocalDay(instant);
    if (!(start < end) || dayFromZone(start) != day || dayFromZone(end - 1) != day ||
        dayFromZone(start - 1) == day || dayFromZone(end) == day) {
        return;
    }
    day_ = day;
    start_ = start;
    end_ = end;
    valid_ = true;
}

}  // namespace larkspan::analytics
