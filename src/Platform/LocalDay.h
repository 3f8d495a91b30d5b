// Calendar days in the user's time zone, through POSIX localtime_r/mktime so that the TZ variable is
// honoured. A day runs from one local midnight to the next, so a day of a clock change is 23 or 25
// hours long. Instants far outside any plausible clock reading are clamped, never undefined.
#pragma once

#include <ctime>
#include <optional>
#include <string>

#include "Platform/Clock.h"

namespace larkspan {

// The local calendar fields of `instant`, floored to its second, as localtime_r gives them; absent
// when the zone cannot express that moment.
std::optional<std::tm> localFields(Date instant);

// The local midnight that begins the day of `instant`.
Date startOfLocalDay(Date instant);

// The local midnight one calendar day after the day of `instant` begins.
Date startOfNextLocalDay(Date instant);

// The local day of `instant` as "yyyy-MM-dd".
std::string localDayString(Date instant);

// Local midnight of the given day; absent when month or day lies outside the Gregorian calendar or
// the zone cannot express it.
std::optional<Date> localMidnight(int year, int month, int day);

// Days in the month (28 to 31); 0 when `month` is not 1 to 12.
int daysInMonth(int year, int month);

}  // namespace larkspan
