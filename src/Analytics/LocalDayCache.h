// Local calendar look-ups for many instants in a row: the day and the hour of each record's start.
// Records come from the store oldest first, so consecutive look-ups nearly always fall on the same
// day. The cache keeps the last day found, with its true bounds, and answers from it while instants
// fall inside; a miss costs a few localtime_r/mktime calls (through Data/LocalDay). Days and hours
// follow the TZ variable.
#pragma once

#include "Platform/Clock.h"

namespace larkspan::analytics {

// A calendar day in the local time zone.
struct LocalDay {
    int year = 1970;
    int month = 1;  // 1 to 12
    int day = 1;    // 1 to 31

    // Orders days by date; equal exactly when the days are equal.
    int ordinal() const { return (year * 100 + month) * 100 + day; }
    bool operator==(const LocalDay&) const = default;
};

class LocalDayCache {
public:
    // The local day of `instant`. Non-finite or absurd instants are clamped as Data/LocalDay does,
    // never undefined.
    LocalDay dayOf(Date instant);
    // The local hour, 0 to 23, of `instant`.
    int hourOf(Date instant);

private:
    bool covers(Date instant) const { return valid_ && instant >= start_ && instant < end_; }
    void refill(Date instant);

    LocalDay day_;
    Date start_ = 0;  // first second of day_, seconds since 1970
    Date end_ = 0;    // first second of the next day
    bool valid_ = false;
};

}  // namespace larkspan::analytics
