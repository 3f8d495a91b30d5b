// A heavy user's history written into a real store, for benchmarks and screen tests: workdays of some
// 1,840 activities from about 08:30 into the evening, lighter weekends, varied applications and
// categories, browsers with their tabs' domains, away spans over lunch, a few waiting for a category,
// and pomodoros on most workdays. A year of it is about 550,000 activities. The same seed writes the
// same history.
#pragma once

#include <cstdint>

#include "Data/Database.h"

namespace larkspan::bench {

struct HistoryShape {
    int days = 365;  // ending with the day of `lastDay`
    int activitiesPerWorkday = 1840;
    unsigned seed = 7;
};

// Writes the history of `shape.days` local days ending with the day of `lastDay` (whole days; the
// last one too, even past `lastDay`) into `database`, in one transaction. Returns the number of
// activities written. Throws DBError when the store refuses a row.
std::int64_t writeHistory(Database& database, Date lastDay, const HistoryShape& shape = {});

}  // namespace larkspan::bench
