// A year of a heavy user's history (about 550,000 activities) in a real database file, and the reads
// the dashboard makes over it: the analytics page of the last three months, a calendar month, and a
// busy day on the timeline. Each stands beside its floor, a bare prepare/step loop over the same rows
// that builds nothing. Statements run on the store queue's thread, so times are wall times, with the
// CPU time of the whole process beside them (the steadier figure on a busy machine).
//
// The file is written once beside this program (year-of-data.db, in the build folder) and reused by
// later runs; delete it to write it anew. Time zone Europe/Berlin, the present pinned to a Wednesday
// afternoon.
#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <time.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "Analytics/AnalyticsLoad.h"
#include "Analytics/AnalyticsPage.h"
#include "Analytics/TimeRange.h"
#include "Platform/LocalDay.h"
#include "Timeline/CanvasLayout.h"
#include "Timeline/TimelineGrouping.h"
#include "YearOfData.h"

namespace larkspan {
namespace {

const std::filesystem::path kFile =
    std::filesystem::read_symlink("/proc/self/exe").parent_path() / "year-of-data.db";
constexpr Date kNow = 1'793'800'800;  // Wednesday 4 November 2026, 15:00 in Berlin

struct Year {
    std::int64_t activities = 0;
    std::unique_ptr<Database> db;

    Year() {
        setenv("TZ", "Europe/Berlin", 1);
        tzset();
        const bool fresh = !std::filesystem::exists(kFile);
        db = std::make_unique<Database>(kFile);
        if (fresh)
            bench::writeHistory(*db, kNow);
        db->query("SELECT COUNT(*) FROM activities", nullptr, [this](sqlite3_stmt* stmt) {
            if (sqlite3_step(stmt) == SQLITE_ROW)
                activities = sqlite3_column_int64(stmt, 0);
            return 0;
        });
    }
};

Year& year() {
    static Year data;
    return data;
}

// The rows in [from, to] by `columns` ("id, app_name, ..."), each column read, nothing built.
int bareStep(Database& db, const std::string& columns, Date from, Date to) {
    return db.query(
        "SELECT " + columns +
            "\nFROM activities\nWHERE start_time >= ? AND start_time <= ?\nORDER BY start_time ASC",
        nullptr, [&](sqlite3_stmt* stmt) {
            bindValues(stmt, from, to);
            int rows = 0;
            while (sqlite3_step(stmt) == SQLITE_ROW) {
                for (int column = 0; column < sqlite3_column_count(stmt); ++column) {
                    if (sqlite3_column_type(stmt, column) == SQLITE_TEXT)
                        benchmark::DoNotOptimize(sqlite3_column_text(stmt, column));
                    else
                        benchmark::DoNotOptimize(sqlite3_column_double(stmt, column));
                }
                ++rows;
            }
            return rows;
        });
}

const std::string kAllColumns =
    "id, app_name, bundle_id, window_title, url, url_domain, category_id, confidence, needs_approval, "
    "is_approved, start_time, end_time, duration_seconds, COALESCE(is_manual,0), notes";
const std::string kTotalsColumns =
    "app_name, category_id, start_time, end_time, duration_seconds, url_domain";

void BM_AnalyticsThreeMonths(benchmark::State& state) {
    Database& db = *year().db;
    const std::vector<Category> categories = db.fetchCategories();
    std::size_t rows = 0;
    for (auto _ : state) {
        const analytics::AnalyticsData data =
            analytics::load(db, analytics::TimeRange::threeMonths, kNow, kNow);
        analytics::AnalyticsPage page = analytics::analyticsPage(data, categories);
        benchmark::DoNotOptimize(page);
        rows = data.activities.size();
    }
    state.counters["rows"] = static_cast<double>(rows);
}
BENCHMARK(BM_AnalyticsThreeMonths)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();

void BM_AnalyticsThreeMonthsFloor(benchmark::State& state) {
    Database& db = *year().db;
    const auto period = analytics::dateRange(analytics::TimeRange::threeMonths, kNow, kNow);
    for (auto _ : state)
        state.counters["rows"] = bareStep(db, kTotalsColumns, period.from, period.to);
}
BENCHMARK(BM_AnalyticsThreeMonthsFloor)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MeasureProcessCPUTime();

// October 2026, as the calendar loads it: a summary per day, then the month's pomodoro counts.
void BM_CalendarMonth(benchmark::State& state) {
    Database& db = *year().db;
    for (auto _ : state) {
        auto days = db.monthSummaries(2026, 10);
        auto counts = db.fetchDailyPomoCounts(*localMidnight(2026, 10, 1), *localMidnight(2026, 10, 31));
        benchmark::DoNotOptimize(days);
        benchmark::DoNotOptimize(counts);
    }
}
BENCHMARK(BM_CalendarMonth)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();

// The floor: the month's rows, stepped over the three columns its totals need, in start order.
void BM_CalendarMonthFloor(benchmark::State& state) {
    Database& db = *year().db;
    for (auto _ : state) {
        state.counters["rows"] = db.query(
            "SELECT start_time, category_id, duration_seconds FROM activities\n"
            "WHERE start_time >= ? AND start_time <= ? AND duration_seconds > 0 ORDER BY start_time",
            nullptr, [](sqlite3_stmt* stmt) {
                bindValues(stmt, *localMidnight(2026, 10, 1), *localMidnight(2026, 11, 1));
                int rows = 0;
                while (sqlite3_step(stmt) == SQLITE_ROW) {
                    benchmark::DoNotOptimize(sqlite3_column_int64(stmt, 1) + sqlite3_column_int64(stmt, 2));
                    ++rows;
                }
                return rows;
            });
    }
}
BENCHMARK(BM_CalendarMonthFloor)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();

// The busiest day of the year on the timeline: its rows, blocks, chapters and canvas layout.
Date busiestDay() {
    Database& db = *year().db;
    return db.query(
        "SELECT start_time FROM activities GROUP BY CAST(start_time / 86400 AS INTEGER) ORDER BY COUNT(*) "
        "DESC "
        "LIMIT 1",
        nullptr, [](sqlite3_stmt* stmt) {
            return sqlite3_step(stmt) == SQLITE_ROW ? startOfLocalDay(sqlite3_column_double(stmt, 0)) : kNow;
        });
}

void BM_TimelineBusyDay(benchmark::State& state) {
    Database& db = *year().db;
    const Date day = busiestDay();
    std::size_t rows = 0;
    for (auto _ : state) {
        const auto activities = db.fetchActivities(day, startOfNextLocalDay(day));
        auto blocks = computeBlocks(activities, 0, true);
        auto chapters = computeChapters(activities, 0, true);
        auto positioned = layoutChapters(chapters, day);
        benchmark::DoNotOptimize(blocks);
        benchmark::DoNotOptimize(positioned);
        rows = activities.size();
    }
    state.counters["rows"] = static_cast<double>(rows);
}
BENCHMARK(BM_TimelineBusyDay)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();

void BM_TimelineBusyDayFloor(benchmark::State& state) {
    Database& db = *year().db;
    const Date day = busiestDay();
    for (auto _ : state)
        state.counters["rows"] = bareStep(db, kAllColumns, day, startOfNextLocalDay(day));
}
BENCHMARK(BM_TimelineBusyDayFloor)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();

// Not a timing: the file's size for the year, in MB, and per activity in bytes.
void BM_FileSizePerYear(benchmark::State& state) {
    const Year& data = year();
    for (auto _ : state)
        benchmark::DoNotOptimize(data.activities);
    const auto bytes = static_cast<double>(std::filesystem::file_size(kFile));
    state.counters["MB"] = bytes / 1e6;
    state.counters["activities"] = static_cast<double>(data.activities);
    state.counters["bytes_per_activity"] = bytes / std::max<double>(1, static_cast<double>(data.activities));
}
BENCHMARK(BM_FileSizePerYear)->Iterations(1);

}  // namespace
}  // namespace larkspan
