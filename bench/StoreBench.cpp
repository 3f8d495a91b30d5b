// Statements run on the store queue's thread, so each benchmark measures wall time, with the CPU
// time of the whole process beside it.
//
// The store's hot paths on a real file: the timeline's range read beside its floor (a bare
// prepare/step loop over the same rows and columns), a month of day summaries as the calendar
// loads it, the tracker's write pattern (a new session, then its heartbeat), and the opening of a
// new store as a first launch makes it.
#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <time.h>

#include <memory>
#include <string>

#include "Data/Database.h"
#include "TempDir.h"

namespace larkspan {
namespace {

constexpr Date kStart = 1717200000;  // 2024-06-01 00:00 UTC
constexpr int kRangeRows = 40000;
constexpr int kRangeDays = 90;

ActivityRecord sampleRow(int i, Date start) {
    static const char* const kApps[][3] = {
        {"Firefox", "org.mozilla.firefox", "github.com"},
        {"Code", "com.microsoft.VSCode", ""},
        {"Terminal", "org.gnome.Terminal", ""},
        {"Slack", "com.slack.Slack", "app.slack.com"},
    };
    const auto& app = kApps[i % 4];
    ActivityRecord record;
    record.appName = app[0];
    record.bundleID = app[1];
    record.windowTitle = "Pull request #" + std::to_string(i) + " · larkspan/larkspan — review changes";
    if (app[2][0] != '\0') {
        record.urlDomain = app[2];
        record.url = "https://" + std::string(app[2]) + "/larkspan/larkspan/pull/" + std::to_string(i);
    }
    record.categoryID = 1 + i % 21;
    record.confidence = 0.9;
    record.isApproved = true;
    record.startTime = start;
    record.endTime = start + 60;
    record.durationSeconds = 60;
    return record;
}

// A store filled once per benchmark program; rows are inserted in one transaction to save time.
struct FilledStore {
    test::TempDir dir;
    Database db{dir / "tracker.db"};

    FilledStore(int rows, double spanSeconds) {
        setenv("TZ", "UTC", 1);
        tzset();
        db.exec("BEGIN");
        for (int i = 0; i < rows; ++i)
            db.insertActivity(sampleRow(i, kStart + spanSeconds * i / rows));
        db.exec("COMMIT");
    }
};

FilledStore& rangeStore() {
    static FilledStore store(kRangeRows, kRangeDays * 86400.0);
    return store;
}

void BM_FetchActivities90Days(benchmark::State& state) {
    Database& db = rangeStore().db;
    for (auto _ : state) {
        auto rows = db.fetchActivities(kStart, kStart + kRangeDays * 86400.0);
        if (rows.size() != kRangeRows)
            state.SkipWithError("wrong row count");
        benchmark::DoNotOptimize(rows);
    }
    state.SetItemsProcessed(state.iterations() * kRangeRows);
}
BENCHMARK(BM_FetchActivities90Days)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();

// The floor: the same statement and columns with nothing built from them.
void BM_BareStepLoop90Days(benchmark::State& state) {
    Database& db = rangeStore().db;
    const std::string sql =
        "SELECT id, app_name, bundle_id, window_title, url, url_domain, category_id,\n"
        "       confidence, needs_approval, is_approved, start_time, end_time, duration_seconds,\n"
        "       COALESCE(is_manual,0), notes\nFROM activities\nWHERE start_time >= ? AND start_time <= ?\n"
        "ORDER BY start_time ASC";
    for (auto _ : state) {
        int rows = db.query(sql, nullptr, [](sqlite3_stmt* stmt) {
            sqlite3_bind_double(stmt, 1, kStart);
            sqlite3_bind_double(stmt, 2, kStart + kRangeDays * 86400.0);
            int count = 0;
            while (sqlite3_step(stmt) == SQLITE_ROW) {
                benchmark::DoNotOptimize(sqlite3_column_int64(stmt, 0));
                for (int column : {1, 2, 3, 4, 5, 14})
                    benchmark::DoNotOptimize(sqlite3_column_text(stmt, column));
                for (int column : {6, 11})
                    benchmark::DoNotOptimize(sqlite3_column_type(stmt, column));
                benchmark::DoNotOptimize(sqlite3_column_int64(stmt, 6));
                benchmark::DoNotOptimize(sqlite3_column_double(stmt, 7));
                benchmark::DoNotOptimize(sqlite3_column_int64(stmt, 8));
                benchmark::DoNotOptimize(sqlite3_column_int64(stmt, 9));
                benchmark::DoNotOptimize(sqlite3_column_double(stmt, 10));
                benchmark::DoNotOptimize(sqlite3_column_double(stmt, 11));
                benchmark::DoNotOptimize(sqlite3_column_int(stmt, 12));
                benchmark::DoNotOptimize(sqlite3_column_int64(stmt, 13));
                ++count;
            }
            return count;
        });
        if (rows != kRangeRows)
            state.SkipWithError("wrong row count");
    }
    state.SetItemsProcessed(state.iterations() * kRangeRows);
}
BENCHMARK(BM_BareStepLoop90Days)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();

// June 2024: 30 days of 600 rows each, read as the calendar does, in one pass.
void BM_MonthSummaries30Days600RowsADay(benchmark::State& state) {
    static FilledStore store(30 * 600, 30 * 86400.0);
    for (auto _ : state) {
        auto days = store.db.monthSummaries(2024, 6);
        // Each day also holds the row at the next midnight: both bounds are inclusive.
        if (days.size() != 30 || days[0].totalSeconds != 601 * 60)
            state.SkipWithError("wrong totals");
        benchmark::DoNotOptimize(days);
    }
}
BENCHMARK(BM_MonthSummaries30Days600RowsADay)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MeasureProcessCPUTime();

// A new session and its first heartbeat, each its own commit, as the tracker writes them.
void BM_InsertActivityThenUpdateEnd(benchmark::State& state) {
    static FilledStore store(0, 0);
    int i = 0;
    for (auto _ : state) {
        ActivityRecord record = sampleRow(i, kStart + i);
        const auto id = store.db.insertActivity(record);
        store.db.updateActivityEnd(id, record.startTime + 30, 30);
        ++i;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_InsertActivityThenUpdateEnd)
    ->Unit(benchmark::kMicrosecond)
    ->UseRealTime()
    ->MeasureProcessCPUTime();

// A first launch: the file created, the schema made and the catalogue seeded before the first row.
// Closing (a checkpoint) and removing the file are left out of the time: a launch waits for neither.
void BM_OpenNewStore(benchmark::State& state) {
    for (auto _ : state) {
        auto dir = std::make_unique<test::TempDir>();
        auto db = std::make_unique<Database>(*dir / "tracker.db");
        benchmark::DoNotOptimize(db.get());
        state.PauseTiming();
        db.reset();
        dir.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_OpenNewStore)->Unit(benchmark::kMillisecond)->UseRealTime()->MeasureProcessCPUTime();

}  // namespace
}  // namespace larkspan
