// Reading one period of the analytics screen from the store: its records, its top websites and its
// pomodoro count. This is the only analytics code that touches the store; everything the screen
// draws is then computed from the result by analyticsPage.
//
// Threads: the store serialises its own statements, so this may run on any thread. The screen runs
// it off the main thread and assigns the result there; a later load does not cancel an earlier one.
#pragma once

#include "Analytics/AnalyticsPage.h"
#include "Analytics/TimeRange.h"
#include "Data/Database.h"

namespace larkspan::analytics {

inline constexpr std::int64_t kLongestDroppedSeconds = 5;  // shorter records are samples, not activities
inline constexpr std::size_t kLoadedDomains = 10;

// The data of the period `range` names at `now` (see dateRange): the records that start in it and
// last longer than 5 seconds, oldest first, with the fields its totals read; its 10 longest websites,
// counted over all its records, short ones included; and the pomodoros of its local days (for `day`
// the selected day alone). A store that fails gives empty lists and 0.
AnalyticsData load(Database& database, TimeRange range, Date selectedDay, Date now);

}  // namespace larkspan::analytics
