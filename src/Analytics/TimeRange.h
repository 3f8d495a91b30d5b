// The periods the analytics screen can show and the instants each one covers. `week`, `month` and
// `threeMonths` are rolling windows of exactly 7, 30 and 90 days of seconds ending at the present
// moment, not calendar weeks or months; `day` is the local day the user has stepped to, `today` the
// present local day. The present moment is always passed in.
#pragma once

#include <array>

#include "Platform/Clock.h"

namespace larkspan::analytics {

enum class TimeRange { day, today, week, month, threeMonths };

// Every range in the order of the range selector.
inline constexpr std::array<TimeRange, 5> kTimeRanges{TimeRange::day, TimeRange::today, TimeRange::week,
                                                      TimeRange::month, TimeRange::threeMonths};

// The label of the range on its selector: "Day", "Today", "Week", "Month", "3 Months".
const char* rawValue(TimeRange range);

// A closed interval of instants.
struct DateInterval {
    Date from = 0;
    Date to = 0;
    bool operator==(const DateInterval&) const = default;
};

// The instants whose records the period shows. For `day`: from the local midnight that begins the
// day of `selectedDay` to the earlier of the next local midnight and `now`, so a day of a clock
// change has its true length and today ends at the present. `selectedDay` is read only by `day`.
DateInterval dateRange(TimeRange range, Date selectedDay, Date now);

// The instants whose local days hold the period's pomodoros; every local day from the day of `from`
// to the day of `to` counts whole. For `day` that is the selected day alone, even though its period
// ends at the next midnight; for the others it is the days that `period` touches, so a `week`
// counts 8 local days, the oldest one whole.
DateInterval pomodoroDays(TimeRange range, Date selectedDay, const DateInterval& period);

}  // namespace larkspan::analytics
