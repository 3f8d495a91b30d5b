// Totals for the screens: a local day, the days of a month, the rows of a period. Each reads its rows
// in one visit (visitRows) and sums them here: a month of a heavy user (some 45,000 rows) or a quarter
// (some 130,000) costs one pass, with no record built for a row that only adds seconds. Nothing is
// cached, so a summary always reflects what is stored (the running session with its latest heartbeat).
#include <algorithm>
#include <functional>
#include <string_view>
#include <unordered_map>

#include "Data/Database.h"
#include "Platform/LocalDay.h"

namespace larkspan {

namespace {

//   day of `date`     |00:00 ...................................... 00:00|   both ends inclusive
//   activities          [==A==]      [====B====]               [===C=====|=====]  C counts whole here
// An activity counts whole on the day it starts, even when it runs past midnight. One starting
// exactly at the next midnight belongs to both days. `dates` name consecutive local days, in order.
std::vector<DaySummary> summarize(Database& database, const std::vector<Date>& dates,
                                  const CategoriesByID& categories) {
    std::vector<DaySummary> days;
    std::vector<Date> starts;
    std::vector<Date> ends;
    for (const Date date : dates) {
        days.push_back(DaySummary{date, 0, 0, {}});
        starts.push_back(startOfLocalDay(date));
        ends.push_back(startOfNextLocalDay(date));
    }
    if (days.empty())
        return days;

    database.visitRows(
        "SELECT count(visit_row(?1, start_time, COALESCE(category_id, 21), duration_seconds))\n"
        "FROM activities\nWHERE start_time >= ?2 AND start_time <= ?3 AND duration_seconds > 0",
        [&](sqlite3_stmt* stmt) {
            bindValue(stmt, 2, starts.front());
            bindValue(stmt, 3, ends.back());
        },
        [&](sqlite3_value** row) {
            const Date start = sqlite3_value_double(row[0]);
            const std::int64_t category = sqlite3_value_int64(row[1]);
            const std::int64_t seconds = sqlite3_value_int64(row[2]);
            const Category* known = categoryWithID(categories, category);
            const bool productive = known != nullptr && known->productivity == Productivity::productive;
            // Only the last day starting at or before `start` and the day before it, which may end
            // exactly there, can hold the row.
            const auto later = static_cast<std::size_t>(
                std::upper_bound(starts.begin(), starts.end(), start) - starts.begin());
            for (std::size_t day = later >= 2 ? later - 2 : 0; day < later; ++day) {
                if (start > ends[day])
                    continue;
                DaySummary& summary = days[day];
                summary.totalSeconds += seconds;
                summary.byCategory[category] += seconds;
                if (productive)
                    summary.productiveSeconds += seconds;
            }
        });
    return days;
}

// Domains are looked up by the text SQLite hands out, so a row of a known domain allocates nothing.
struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
};

}  // namespace

DaySummary Database::daySummary(Date date) {
    return summarize(*this, {date}, categoriesByID(fetchCategories())).front();
}

std::vector<DaySummary> Database::monthSummaries(int year, int month) {
    std::vector<Date> dates;
    const int length = daysInMonth(year, month);
    if (length == 0 || !localMidnight(year, month, 1))
        return {};
    for (int day = 1; day <= length; ++day) {
        if (const auto midnight = localMidnight(year, month, day))
            dates.push_back(*midnight);
    }
    return summarize(*this, dates, categoriesByID(fetchCategories()));
}

PeriodActivities Database::fetchPeriodActivities(Date from, Date to, std::int64_t longerThan) {
    PeriodActivities period;
    std::unordered_map<std::string, std::int64_t, TextHash, std::equal_to<>> domainSeconds;
    visitRows(
        "SELECT count(visit_row(?1, app_name, category_id, start_time, end_time, duration_seconds, "
        "url_domain))\nFROM activities\nWHERE start_time >= ?2 AND start_time <= ?3",
        [&](sqlite3_stmt* stmt) {
            bindValue(stmt, 2, from);
            bindValue(stmt, 3, to);
        },
        [&](sqlite3_value** row) {
            const std::int64_t seconds = sqlite3_value_int64(row[4]);
            if (const auto* domain = reinterpret_cast<const char*>(sqlite3_value_text(row[5]));
                domain != nullptr && domain[0] != '\0') {
                const auto found = domainSeconds.find(std::string_view(domain));
                if (found != domainSeconds.end())
                    found->second += seconds;
                else
                    domainSeconds.emplace(domain, seconds);
            }
            if (seconds <= longerThan)
                return;
            ActivityTotal& activity = period.activities.emplace_back();
            if (const auto* name = reinterpret_cast<const char*>(sqlite3_value_text(row[0])))
                activity.appName = name;
            if (sqlite3_value_type(row[1]) != SQLITE_NULL)
                activity.categoryID = sqlite3_value_int64(row[1]);
            activity.startTime = sqlite3_value_double(row[2]);
            if (sqlite3_value_type(row[3]) != SQLITE_NULL)
                activity.endTime = sqlite3_value_double(row[3]);
            activity.durationSeconds = seconds;
        });
    // The index gives the rows oldest first; should SQLite visit them otherwise, they are put in order.
    const auto byStart = [](const ActivityTotal& a, const ActivityTotal& b) {
        return a.startTime < b.startTime;
    };
    if (!std::is_sorted(period.activities.begin(), period.activities.end(), byStart))
        std::stable_sort(period.activities.begin(), period.activities.end(), byStart);
    period.domains.reserve(domainSeconds.size());
    for (auto& [domain, seconds] : domainSeconds)
        period.domains.push_back(DomainTotal{domain, seconds});
    std::sort(period.domains.begin(), period.domains.end(), [](const DomainTotal& a, const DomainTotal& b) {
        return a.seconds != b.seconds ? a.seconds > b.seconds : a.domain < b.domain;
    });
    return period;
}

}  // namespace larkspan
