// One capture of the desktop as the activity monitor makes it every 4 seconds: the frontmost
// application with its identity, its focused window title and the idle time, against a private
// Xvfb display with openbox and an xterm in front. The floor beside it is a single round trip to
// the server (the idle query alone); the ratio shows what identity and titles add.
//
// On Wayland the compositor pushes window changes instead: BM_WaylandActivationToStoredRow times
// our side of one activation, from the reported window to its row in the store.
#include <benchmark/benchmark.h>

#include "Data/Database.h"
#include "ManualMainQueue.h"
#include "Platform/Linux/ReportedWorkspace.h"
#include "Platform/Linux/X11Workspace.h"
#include "TempDir.h"
#include "XvfbDisplay.h"

namespace larkspan {
namespace {

struct Desktop {
    test::XvfbDisplay display;
    std::shared_ptr<X11Workspace> workspace;
    std::int64_t pid = 0;
    std::string error;

    Desktop() {
        if (!display.ready()) {
            error = display.error().empty() ? "Xvfb is not installed" : display.error();
            return;
        }
        display.spawn({"xterm", "-class", "LarkspanBench", "-T", "Benchmark \xE2\x9C\x93 window", "-e",
                       "sleep", "600"});
        const auto windows = display.windowsOfClass("LarkspanBench");
        if (windows.empty()) {
            error = "xterm did not start";
            return;
        }
        auto session = SessionEnvironment::fromProcess();  // the real desktop-entry folders
        session.display = display.name();
        session.wayland = false;
        auto entries = std::make_shared<DesktopEntries>(session.applicationDirs, session.localeKeys);
        workspace = std::make_shared<X11Workspace>(session, std::make_shared<AppIdentity>(entries),
                                                   std::make_shared<test::ManualMainQueue>(), nullptr);
        test::waitUntil([&] {
            display.activate(windows[0]);
            auto app = workspace->frontmostApplication();
            pid = app ? app->pid : 0;
            return pid != 0;
        });
        if (!pid)
            error = "the xterm never came to the front";
    }
};

Desktop& desktop() {
    static Desktop instance;
    return instance;
}

void BM_FullCapture(benchmark::State& state) {
    auto& d = desktop();
    if (!d.error.empty()) {
        state.SkipWithError(d.error.c_str());
        return;
    }
    for (auto _ : state) {
        const double idle = d.workspace->secondsSinceLastInput();
        auto app = d.workspace->frontmostApplication();
        auto title = app ? d.workspace->focusedWindowTitle(app->pid) : std::nullopt;
        benchmark::DoNotOptimize(idle);
        benchmark::DoNotOptimize(title);
        if (!app || !title)
            state.SkipWithError("capture came back empty");
    }
}
BENCHMARK(BM_FullCapture)->Unit(benchmark::kMicrosecond);

void BM_OneRoundTrip(benchmark::State& state) {
    auto& d = desktop();
    if (!d.error.empty()) {
        state.SkipWithError(d.error.c_str());
        return;
    }
    for (auto _ : state)
        benchmark::DoNotOptimize(d.workspace->secondsSinceLastInput());
}
BENCHMARK(BM_OneRoundTrip)->Unit(benchmark::kMicrosecond);

// A foreign-toplevel `done` for a newly activated window: the report, the activation notice on the
// main queue, the capture's three reads with identity from the real desktop entries, and the insert.
void BM_WaylandActivationToStoredRow(benchmark::State& state) {
    const auto session = SessionEnvironment::fromProcess();
    auto mainQueue = std::make_shared<test::ManualMainQueue>();
    ReportedWorkspace workspace(std::make_shared<AppIdentity>(std::make_shared<DesktopEntries>(
                                    session.applicationDirs, session.localeKeys)),
                                mainQueue, nullptr, {}, {});
    workspace.sourceConnected(true);
    int activations = 0;
    workspace.setApplicationActivatedHandler([&] { ++activations; });
    test::TempDir folder;
    Database database(folder / "tracker.db");
    const ReportedWindow windows[2] = {{.id = 1, .appID = "foot", .title = "~/src: make test"},
                                       {.id = 2, .appID = "org.gnome.Nautilus", .title = "Downloads"}};
    std::size_t next = 0;
    for (auto _ : state) {
        workspace.windowChanged(windows[next++ % 2], true);
        mainQueue->drain();
        ActivityRecord record;
        const double idle = workspace.secondsSinceLastInput();
        const auto app = workspace.frontmostApplication();
        record.appName = app->localizedName.value_or("Unknown");
        record.bundleID = app->bundleID;
        record.windowTitle = workspace.focusedWindowTitle(app->pid);
        record.startTime = 1.7e9 + static_cast<double>(next);
        benchmark::DoNotOptimize(idle);
        benchmark::DoNotOptimize(database.insertActivity(record));
    }
    if (activations != static_cast<int>(state.iterations()))
        state.SkipWithError("every switch must announce one activation");
}
BENCHMARK(BM_WaylandActivationToStoredRow)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime();

}  // namespace
}  // namespace larkspan
