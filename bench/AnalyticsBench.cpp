// The whole analytics page for the longest period: 90 days of 40,000 records, as one load brings
// them (oldest first). Beside it, the natural floor: one bare pass over the same records that sums
// the durations and looks up each category, which every figure of the page needs at least once.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <ctime>
#include <random>
#include <string>
#include <vector>

#include "Analytics/AnalyticsPage.h"

namespace larkspan::analytics {
namespace {

constexpr int kRecords = 40000;
constexpr int kDays = 90;

AnalyticsData ninetyDays() {
    setenv("TZ", "Europe/Berlin", 1);
    tzset();
    std::mt19937 random(42);
    std::vector<std::string> apps;
    for (int i = 0; i < 40; ++i)
        apps.push_back("Application " + std::to_string(i));
    const Date first = 1'764'547'200;  // 1 December 2025, 00:00 UTC
    AnalyticsData data;
    data.totalPomos = 120;
    for (int i = 0; i < 10; ++i)
        data.topDomains.push_back({"site" + std::to_string(i) + ".example", 90'000 - 5'000 * i});
    // Records spread over the waking hours 07:00 to 23:00 of each day, some 444 a day.
    const int perDay = kRecords / kDays + 1;
    for (int i = 0; i < kRecords; ++i) {
        const int day = i / perDay;
        const double offset = 7 * 3600 + (16.0 * 3600 / perDay) * (i % perDay);
        ActivityTotal r;
        r.appName = apps[random() % apps.size()];
        if (random() % 10 != 0)
            r.categoryID = 1 + static_cast<std::int64_t>(random() % 22);  // 22 is unknown
        r.startTime = first + day * 86400.0 + offset;
        r.durationSeconds = 6 + static_cast<std::int64_t>(random() % 120);
        if (i + 1 < kRecords)
            r.endTime = r.startTime + static_cast<double>(r.durationSeconds);
        data.activities.push_back(std::move(r));
    }
    return data;
}

void BM_AnalyticsPage(benchmark::State& state) {
    const AnalyticsData data = ninetyDays();
    const std::vector<Category>& categories = Category::seeded();
    for (auto _ : state) {
        AnalyticsPage page = analyticsPage(data, categories);
        benchmark::DoNotOptimize(page);
    }
    state.counters["records"] = static_cast<double>(data.activities.size());
}
BENCHMARK(BM_AnalyticsPage)->Unit(benchmark::kMillisecond);

void BM_OnePassFloor(benchmark::State& state) {
    const AnalyticsData data = ninetyDays();
    const std::vector<Category>& categories = Category::seeded();
    for (auto _ : state) {
        PeriodTotals totals = periodTotals(data.activities, categoriesByID(categories));
        benchmark::DoNotOptimize(totals);
    }
}
BENCHMARK(BM_OnePassFloor)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace larkspan::analytics
