// The day view's computation at every redraw: blocks, chapters and the canvas layout of a busy day,
// and the width pass of the layout, which compares placed chapters pairwise, from 100 to 2,000 chapters.
// Then the screen itself over a store holding that day: from selecting the day to its canvas and list
// models filled, and one frame of the canvas rendered offscreen.

#include <benchmark/benchmark.h>
#include <QGuiApplication>
#include <QQuickItem>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <vector>

#include "ActivityBuilder.h"
#include "DashboardRig.h"
#include "QuickScreen.h"
#include "Timeline/CanvasLayout.h"
#include "Timeline/TimelineGrouping.h"

namespace larkspan {
namespace {

using test::ActivityBuilder;

constexpr Date kDayStart = 1'763'856'000;

// `count` activities from 07:00: site visits, editor and terminal windows, chat windows with long
// titles, and every fortieth an away span of 2 to 20 minutes; short pauses between them. Spans and
// pauses shrink as the count grows past 1,500, so the larger days are as crowded as a day can be.
std::vector<ActivityRecord> busyDay(int count = 1500) {
    const auto scaled = [count](std::int64_t seconds) {
        return std::max<std::int64_t>(1, seconds * std::min(count, 1500) / count);
    };
    std::mt19937 random(1500);
    const std::array<const char*, 8> hosts = {
        "github.com",       "docs.rs",     "news.ycombinator.com", "mail.example.org",
        "en.wikipedia.org", "youtube.com", "stackoverflow.com",    "calendar.example.org"};
    std::vector<ActivityRecord> day;
    Date t = kDayStart + 7 * 3600;
    for (std::int64_t id = 1; id <= count; ++id) {
        const std::int64_t seconds = scaled(5 + static_cast<std::int64_t>(random() % 60));
        ActivityBuilder a(id, t, seconds);
        switch (random() % 4) {
            case 0:
                a.app("Firefox", "org.mozilla.firefox")
                    .domain(hosts[random() % hosts.size()])
                    .title("A page title");
                break;
            case 1:
                a.app("Code", "com.microsoft.VSCode").title("file" + std::to_string(random() % 9) + ".cpp");
                break;
            case 2:
                a.app("kitty", "net.kovidgoyal.kitty").title("~/src");
                break;
            default:
                a.app("Chat", "org.example.Chat")
                    .title(
                        "\U0001F4AC Team room \u00B7 a long channel topic that runs past sixty characters #" +
                        std::to_string(random() % 5));
                break;
        }
        a.category(static_cast<std::int64_t>(random() % 6));
        if (id % 40 == 0)
            a = ActivityBuilder::away(id, t, scaled(120 + static_cast<std::int64_t>(random() % 1080)));
        const ActivityRecord record = a;
        day.push_back(record);
        t = effectiveEnd(record) + static_cast<double>(scaled(static_cast<std::int64_t>(random() % 8)));
    }
    return day;
}

void BM_BusyDayBlocksChaptersLayout(benchmark::State& state) {
    const std::vector<ActivityRecord> day = busyDay();
    for (auto _ : state) {
        std::vector<TimelineBlock> blocks = computeBlocks(day, 0, true);
        std::vector<TimelineChapter> chapters = computeChapters(day, 0, true);
        std::vector<PositionedChapter> positioned = layoutChapters(chapters, kDayStart);
        benchmark::DoNotOptimize(blocks.data());
        benchmark::DoNotOptimize(positioned.data());
    }
    const auto chapters = computeChapters(day, 0, true);
    state.counters["blocks"] = static_cast<double>(computeBlocks(day, 0, true).size());
    state.counters["chapters"] = static_cast<double>(chapters.size());
}
BENCHMARK(BM_BusyDayBlocksChaptersLayout)->Unit(benchmark::kMicrosecond);

// `count` chapters of 1 to 20 minutes spread over the day with an away span every tenth, placed by
// passes 1 and 2: many boxes at their minimum height, both lanes in use.
std::vector<PrePlaced> placedChapters(std::int64_t count) {
    std::mt19937 random(static_cast<unsigned>(count));
    std::vector<TimelineChapter> chapters;
    const double step = 86400.0 / static_cast<double>(count);
    for (std::int64_t i = 0; i < count; ++i) {
        const Date start = kDayStart + static_cast<double>(i) * step;
        const std::int64_t seconds = 60 + static_cast<std::int64_t>(random() % 1140);
        chapters.push_back(makeChapter(
            {i % 10 == 9 ? ActivityBuilder::away(i, start, seconds) : ActivityBuilder(i, start, seconds)}));
    }
    return placeChapters(chapters, kDayStart);
}

void BM_LayoutWidthPass(benchmark::State& state) {
    const std::vector<PrePlaced> placed = placedChapters(state.range(0));
    for (auto _ : state) {
        std::vector<double> widths = chapterWidths(placed);
        benchmark::DoNotOptimize(widths.data());
    }
    state.SetComplexityN(state.range(0));
}
// The worst case for the pairwise comparison: boxes one under the other in lane 0, none sharing its
// rows, so no comparison can stop early.
void BM_LayoutWidthPassNothingShared(benchmark::State& state) {
    std::vector<PrePlaced> placed;
    for (std::int64_t i = 0; i < state.range(0); ++i) {
        placed.push_back({static_cast<std::size_t>(i), 24.0 * static_cast<double>(i), 22, 0, false});
    }
    for (auto _ : state) {
        std::vector<double> widths = chapterWidths(placed);
        benchmark::DoNotOptimize(widths.data());
    }
    state.SetComplexityN(state.range(0));
}

// Chapter counts from a quiet day to far more than any real one.
void chapterCounts(benchmark::internal::Benchmark* benchmark) {
    for (const int count : {100, 250, 500, 1000, 2000})
        benchmark->Arg(count);
    benchmark->Unit(benchmark::kMicrosecond)->Complexity();
}

BENCHMARK(BM_LayoutWidthPassNothingShared)->Apply(chapterCounts);
BENCHMARK(BM_LayoutWidthPass)->Apply(chapterCounts);

// The busy day stored, shown by the timeline screen of a dashboard whose clock stands at its end.
struct StoredBusyDay {
    test::DashboardRig rig;
    TimelineController& timeline = *rig.screens.timeline();

    explicit StoredBusyDay(int count) {
        for (ActivityRecord record : busyDay(count)) {
            if (record.categoryID == 0)
                record.categoryID.reset();  // no such category: uncategorised
            rig.db.insertActivity(record);
        }
        rig.clock.set(kDayStart + 86'000);
        rig.dashboard.loadCategories();
    }
};

void BM_SelectBusyDayToCanvasAndList(benchmark::State& state) {
    StoredBusyDay day(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        day.rig.dashboard.setSelectedDate(kDayStart - 86'400);
        day.timeline.waitForLoad();
        state.ResumeTiming();
        day.rig.dashboard.setSelectedDate(kDayStart + 43'200);
        day.timeline.waitForLoad();
    }
    state.counters["rows"] = day.timeline.rows()->rowCount();
    state.counters["boxes"] = day.timeline.chapters()->rowCount();
}
BENCHMARK(BM_SelectBusyDayToCanvasAndList)->Arg(1500)->Arg(5000)->Unit(benchmark::kMillisecond);

void BM_CanvasFrameOffscreen(benchmark::State& state) {
    StoredBusyDay day(static_cast<int>(state.range(0)));
    day.rig.dashboard.setSelectedDate(kDayStart + 43'200);
    QuickScreen screen;
    if (!screen.load("TimelineView", {{"controller", QVariant::fromValue(&day.timeline)}}, {1100, 740})) {
        state.SkipWithError("the view did not load");
        return;
    }
    day.timeline.waitForLoad();
    QQuickItem* canvas = screen.find("canvas");
    double y = 700;
    for (auto _ : state) {
        // Each frame at another place of the day, so nothing is drawn twice alike.
        y = y > 1900 ? 700 : y + 97;
        canvas->setProperty("contentY", y);
        benchmark::DoNotOptimize(screen.grab().constBits());
    }
    state.counters["boxes"] = day.timeline.chapters()->rowCount();
}
BENCHMARK(BM_CanvasFrameOffscreen)->Arg(1500)->Arg(5000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace larkspan

// The screens need an application object, made before the first benchmark and gone after the last
// (one left to static destruction outlives what Qt tears down at exit).
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    setenv("TZ", "UTC", 1);
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
