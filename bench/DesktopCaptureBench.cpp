// One capture of the desktop as the activity monitor makes it every 4 seconds: the frontmost
// application with its identity, its focused window title and the idle time, against a private
// Xvfb display with openbox and an xterm in front. The floor beside it is a single round trip to
// the server (the idle query alone); the ratio shows what identity and titles add. A second xterm
// stands for a browser window whose extension reported its tab: its capture adds the tab script,
// answered from the bridge.
//
// On Wayland the compositor pushes window changes instead: BM_WaylandActivationToStoredRow times
// our side of one activation, from the reported window to its row in the store, and
// BM_WlrootsActivationToStoredRow the same from the wlroots protocol's events on.
#include <benchmark/benchmark.h>

#include <thread>

#include "Data/Database.h"
#include "FakeBrowserBridge.h"
#include "FakeCompositor.h"
#include "ManualMainQueue.h"
#include "Platform/Linux/LinuxScriptRunner.h"
#include "Platform/Linux/ReportedWorkspace.h"
#include "Platform/Linux/Wayland/WaylandSource.h"
#include "Platform/Linux/X11Workspace.h"
#include "Platform/TabScripts.h"
#include "TempDir.h"
#include "XvfbDisplay.h"

namespace larkspan {
namespace {

struct Desktop {
    test::XvfbDisplay display;
    std::shared_ptr<X11Workspace> workspace;
    std::int64_t pid = 0;
    std::string window;
    std::string browserWindow;
    std::shared_ptr<test::FakeBrowserBridge> bridge = std::make_shared<test::FakeBrowserBridge>();
    std::string error;

    Desktop() {
        if (!display.ready()) {
            error = display.error().empty() ? "Xvfb is not installed" : display.error();
            return;
        }
        display.spawn({"xterm", "-class", "LarkspanBench", "-T", "Benchmark \xE2\x9C\x93 window", "-e",
                       "sleep", "600"});
        display.spawn({"xterm", "-class", "LarkspanBrowser", "-T", "larkspan/tracker: Issues - Chromium",
                       "-xrm", "XTerm*allowTitleOps: false", "-e", "sleep", "600"});
        const auto windows = display.windowsOfClass("LarkspanBench");
        const auto browsers = display.windowsOfClass("LarkspanBrowser");
        if (windows.empty() || browsers.empty()) {
            error = "xterm did not start";
            return;
        }
        window = windows[0];
        browserWindow = browsers[0];
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

    // Brings `target` to the front; its owner's pid, or 0 when it never got there.
    std::int64_t bringToFront(const std::string& target) {
        std::int64_t front = 0;
        test::waitUntil([&] {
            display.activate(target);
            auto focused = workspace->frontWindow();
            front = focused && focused->title.ends_with(target == browserWindow ? "Chromium" : "window")
                        ? focused->pid
                        : 0;
            return front != 0;
        });
        return front;
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
    if (!d.bringToFront(d.window)) {
        state.SkipWithError("the xterm never came to the front");
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

// The capture of a browser in front: the sample as above, then the tab script answered from the
// bridge's report after comparing it with the window's title.
void BM_FullCaptureWithBridgeAnswer(benchmark::State& state) {
    auto& d = desktop();
    if (!d.error.empty()) {
        state.SkipWithError(d.error.c_str());
        return;
    }
    const auto browserPid = d.bringToFront(d.browserWindow);
    if (!browserPid) {
        state.SkipWithError("the browser window never came to the front");
        return;
    }
    d.bridge->setReports({{browserPid, "chromium", false, "https://github.com/larkspan/tracker/issues",
                           "larkspan/tracker: Issues", 0}});
    LinuxScriptRunner runner(d.workspace, d.bridge);
    const auto script = runner.compile(chromiumFamilyTabScript("Chromium"));
    for (auto _ : state) {
        const double idle = d.workspace->secondsSinceLastInput();
        auto app = d.workspace->frontmostApplication();
        auto title = app ? d.workspace->focusedWindowTitle(app->pid) : std::nullopt;
        auto tab = runner.execute(*script);
        benchmark::DoNotOptimize(idle);
        benchmark::DoNotOptimize(title);
        if (!tab)
            state.SkipWithError("the bridge did not answer");
    }
}
BENCHMARK(BM_FullCaptureWithBridgeAnswer)->Unit(benchmark::kMicrosecond);

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

// A workspace fed as a Wayland backend feeds it, and the store its captures go to.
struct ReportedDesktop {
    std::shared_ptr<test::ManualMainQueue> mainQueue = std::make_shared<test::ManualMainQueue>();
    std::shared_ptr<ReportedWorkspace> workspace;
    test::TempDir folder;
    Database database{folder / "tracker.db"};
    int activations = 0;
    std::size_t stored = 0;

    ReportedDesktop() {
        const auto session = SessionEnvironment::fromProcess();
        workspace = std::make_shared<ReportedWorkspace>(
            std::make_shared<AppIdentity>(
                std::make_shared<DesktopEntries>(session.applicationDirs, session.localeKeys)),
            mainQueue, nullptr, DesktopNotice{}, DesktopNotice{});
        workspace->sourceConnected(true);
        workspace->setApplicationActivatedHandler([this] { ++activations; });
    }

    // The monitor's side of an activation: the capture it makes and the row it stores.
    void storeCapture() {
        ActivityRecord record;
        const double idle = workspace->secondsSinceLastInput();
        const auto app = workspace->frontmostApplication();
        record.appName = app->localizedName.value_or("Unknown");
        record.bundleID = app->bundleID;
        record.windowTitle = workspace->focusedWindowTitle(app->pid);
        record.startTime = 1.7e9 + static_cast<double>(++stored);
        benchmark::DoNotOptimize(idle);
        benchmark::DoNotOptimize(database.insertActivity(record));
    }
};

// A foreign-toplevel `done` for a newly activated window: the report, the activation notice on the
// main queue, the capture's three reads with identity from the real desktop entries, and the insert.
void BM_WaylandActivationToStoredRow(benchmark::State& state) {
    ReportedDesktop desktop;
    const ReportedWindow windows[2] = {{.id = 1, .appID = "foot", .title = "~/src: make test"},
                                       {.id = 2, .appID = "org.gnome.Nautilus", .title = "Downloads"}};
    std::size_t next = 0;
    for (auto _ : state) {
        desktop.workspace->windowChanged(windows[next++ % 2], true);
        desktop.mainQueue->drain();
        desktop.storeCapture();
    }
    if (desktop.activations != static_cast<int>(state.iterations()))
        state.SkipWithError("every switch must announce one activation");
}
BENCHMARK(BM_WaylandActivationToStoredRow)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime();

// The same through the wlroots backend: the compositor's toplevel events over the socket, read on
// the source's thread, to the stored row. Process CPU, so the in-process compositor's sending counts too.
void BM_WlrootsActivationToStoredRow(benchmark::State& state) {
    ReportedDesktop desktop;
    test::FakeCompositor compositor;
    WaylandSource source(compositor.display(), desktop.workspace);
    if (!test::waitUntil([&] { return compositor.idleTimeoutMs() != 0; })) {
        state.SkipWithError("the source never bound the compositor's globals");
        return;
    }
    const char* const windows[2][2] = {{"foot", "~/src: make test"}, {"org.gnome.Nautilus", "Downloads"}};
    int next = 0;
    for (auto _ : state) {
        const int key = next++ % 2;
        compositor.showWindow(key, windows[key][0], windows[key][1], true);
        // The announcement comes from the source's thread; sleeping for it costs no CPU.
        while (desktop.mainQueue->drain() == 0)
            std::this_thread::sleep_for(std::chrono::microseconds(20));
        desktop.storeCapture();
    }
    if (desktop.activations != static_cast<int>(state.iterations()))
        state.SkipWithError("every switch must announce one activation");
}
BENCHMARK(BM_WlrootsActivationToStoredRow)->Unit(benchmark::kMicrosecond)->MeasureProcessCPUTime();

}  // namespace
}  // namespace larkspan
