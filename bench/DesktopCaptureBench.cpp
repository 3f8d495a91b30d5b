// One capture of the desktop as the activity monitor makes it every 4 seconds: the frontmost
// application with its identity, its focused window title and the idle time, against a private
// Xvfb display with openbox and an xterm in front. The floor beside it is a single round trip to
// the server (the idle query alone); the ratio shows what identity and titles add.
#include <benchmark/benchmark.h>

#include "ManualMainQueue.h"
#include "Platform/Linux/X11Workspace.h"
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

}  // namespace
}  // namespace larkspan
