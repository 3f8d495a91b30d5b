// Totals for the screens: a local day, the days of a month, the most visited domains. Days and
// months are summed by the store per category and weighed against the category read; nothing is cached, so a
// summary always reflects what is stored (the running session with its latest heartbeat).
#include "Data/Database.h"
#include "Platform/LocalDay.h"

namespace larkspan {

namespace {

//   day of `date`     |00:00 ...................................... 00:00|   both ends inclusive
//   activities          [==A==]      [====B====]               [===C=====|=====]  C counts whole here
// An activity counts whole on the day it starts, even when it runs past midnight. One starting
// exactly at the next midnight belongs to both days. The store sums per category, so a month of a
// heavy user (some 50,000 rows) is read without building a record for each row.
DaySummary summarize(Database& database, Date date, const CategoriesByID& categories) {
    DaySummary summary;
    summary.date = date;
    database.queryRows(
        "SELECT COALESCE(category_id, 21), SUM(duration_seconds)\nFROM activities\n"
        "WHERE start_time >= ? AND start_time <= ? AND duration_seconds > 0\nGROUP BY 1",
        [&](sqlite3_stmt* stmt) { bindValues(stmt, startOfLocalDay(date), startOfNextLocalDay(date)); },
        [&](sqlite3_stmt* stmt) {
            const std::int64_t category = sqlite3_column_int64(stmt, 0);
            const std::int64_t seconds = sqlite3_column_int64(stmt, 1);
            summary.totalSeconds += seconds;
            summary.byCategory[category] += seconds;
            const Category* known = categoryWithID(categories, category);
            if (known != nullptr && known->productivity == Productivity::productive)
                summary.productiveSeconds += seconds;
        });
    return summary;
}

}  // namespace

DaySummary Database::daySummary(Date date) {
    return summarize(*this, date, categoriesByID(fetchCategories()));
}

std::vector<DaySummary> Database::monthSummaries(int year, int month) {
    std::vector<DaySummary> days;
    const int length = daysInMonth(year, month);
    if (length == 0 || !localMidnight(year, month, 1))
        return days;
    const CategoriesByID categories = categoriesByID(fetchCategories());
    days.reserve(static_cast<std::size_t>(length));
    for (int day = 1; day <= length; ++day) {
        if (const auto midnight = localMidnight(year, month, day))
            days.push_back(summarize(*this, *midnight, categories));
    }
    return days;
}

std::vector<DomainTotal> Database::fetchTopDomains(Date from, Date to, int limit) {
    std::vector<DomainTotal> domains;
    queryRows(
        "SELECT url_domain, SUM(duration_seconds) as total\nFROM activities\n"
        "WHERE start_time >= ? AND start_time <= ? AND url_domain IS NOT NULL AND url_domain != ''\n"
        "GROUP BY url_domain ORDER BY total DESC LIMIT ?",
        [&](sqlite3_stmt* stmt) { bindValues(stmt, from, to, limit); },
        [&](sqlite3_stmt* stmt) {
            domains.push_back(DomainTotal{string(stmt, 0).value_or(""), sqlite3_column_int(stmt, 1)});
        });
    return domains;
}

}  // namespace larkspan
