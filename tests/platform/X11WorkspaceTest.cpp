// The workspace against a real X server: a private Xvfb display with openbox, xterm windows with
// known classes and titles, and xdotool as the user.
#include "Platform/Linux/X11Workspace.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <ctime>
#include <fstream>
#include <thread>

#include "ManualMainQueue.h"
#include "RecordingNotifier.h"
#include "TempDir.h"
#include "TestWindows.h"
#include "XvfbDisplay.h"

namespace larkspan {
namespace {

using namespace std::chrono_literals;
const std::filesystem::path kData = LARKSPAN_PLATFORM_TEST_DATA;

class X11WorkspaceTest : public ::testing::Test {
protected:
    void SetUp() override {
        display = std::make_unique<test::XvfbDisplay>();
        ASSERT_TRUE(display->ready()) << display->error();
    }

    // Counts its activations in `activations`.
    std::shared_ptr<X11Workspace> makeWorkspace(bool wayland = false) {
        SessionEnvironment session;
        session.display = display->name();
        session.wayland = wayland;
        auto entries = std::make_shared<DesktopEntries>(std::vector{kData / "x11/applications"},
                                                        std::vector<std::string>{"de"});
        auto workspace = std::make_shared<X11Workspace>(session, std::make_shared<AppIdentity>(entries),
                                                        mainQueue, notifier);
        workspace->setApplicationActivatedHandler([this] { ++activations; });
        return workspace;
    }

    struct Xterm {
        pid_t pid;
        std::string window;
    };
    // An xterm and its one mapped window (empty, and a failure, when there is not exactly one).
    Xterm xterm(const std::string& wmClass, const std::string& title,
                const std::string& command = "exec sleep 600") {
        const pid_t pid =
            display->spawn({"xterm", "-u8", "-class", wmClass, "-T", title, "-e", "sh", "-c", command});
        const auto windows = display->windowsOfClass(wmClass);
        EXPECT_EQ(windows.size(), 1u) << wmClass;
        return {pid, windows.size() == 1 ? windows[0] : std::string()};
    }

    std::string frontmostID(Workspace& workspace) {
        auto app = workspace.frontmostApplication();
        return app && app->bundleID ? *app->bundleID : "(none)";
    }

    // Creates a test window and waits until it is shown.
    std::string show(test::TestWindows& windows, const test::TestWindows::Properties& properties) {
        const auto id = windows.create(properties);
        const auto name = std::to_string(id);
        for (int attempt = 0; attempt < 10; ++attempt) {
            const auto shown = display->windowsOfClass(properties.wmClass, 500ms);
            if (std::find(shown.begin(), shown.end(), name) != shown.end())
                return name;
            windows.map(id);
        }
        ADD_FAILURE() << properties.title << " was never shown";
        return name;
    }

    // Activates the window until `done` holds. A window manager ignores requests for a window it is
    // still taking over, hence the repeats.
    bool activateUntil(const std::string& window, const std::function<bool()>& done) {
        for (int attempt = 0; attempt < 10; ++attempt) {
            display->activate(window);
            if (test::waitUntil(done, 500ms))
                return true;
        }
        return false;
    }
    void bringToFront(Workspace& workspace, const std::string& window, const std::string& expectedID) {
        ASSERT_TRUE(activateUntil(window, [&] { return frontmostID(workspace) == expectedID; }))
            << "front: " << frontmostID(workspace) << ", expected " << expectedID;
    }
    void focus(Workspace& workspace, const std::string& window, const std::string& title) {
        ASSERT_TRUE(activateUntil(window, [&] { return workspace.focusedWindowTitle(getpid()) == title; }))
            << workspace.focusedWindowTitle(getpid()).value_or("(none)") << ", expected " << title;
    }

    bool activationsReach(int expected, std::chrono::milliseconds timeout = 5000ms) {
        return test::waitUntil(
            [&] {
                mainQueue->drain();
                return activations >= expected;
            },
            timeout);
    }
    // The watcher handles notices in order, so one for anything done before is in after a moment.
    int settledActivations() {
        std::this_thread::sleep_for(100ms);
        mainQueue->drain();
        return activations;
    }

    std::unique_ptr<test::XvfbDisplay> display;
    std::shared_ptr<test::ManualMainQueue> mainQueue = std::make_shared<test::ManualMainQueue>();
    std::shared_ptr<test::RecordingNotifier> notifier = std::make_shared<test::RecordingNotifier>();
    int activations = 0;
};

// The identity of a window's application and its plain title are checked end to end; here what
// only the workspace shows.
TEST_F(X11WorkspaceTest, ReportsTheFrontmostApplicationAndEveryWindowsTitle) {
    const auto alpha = xterm("LarkspanAlpha", "Alpha plain");
    const auto beta = xterm("LarkspanBeta", "Beta");
    auto workspace = makeWorkspace();
    bringToFront(*workspace, beta.window, "larkspan-beta");
    EXPECT_EQ(workspace->frontmostApplication()->localizedName, "Beta-Werkzeug");
    // An application behind still has a title; a process without windows has none.
    EXPECT_EQ(workspace->focusedWindowTitle(alpha.pid), "Alpha plain");
    EXPECT_FALSE(workspace->focusedWindowTitle(getpid()));

    std::set<std::pair<std::string, std::int64_t>> running;
    for (const auto& app : workspace->runningApplications())
        running.emplace(app.bundleID.value_or(""), app.pid);
    EXPECT_TRUE(running.count({"LarkspanAlpha", alpha.pid}));
    EXPECT_TRUE(running.count({"larkspan-beta", beta.pid}));

    // A title that changes while focused is read afresh, emoji and all.
    test::TempDir dir;
    const auto flag = (dir / "flag").string();
    const std::string after = "After \xE2\x9C\x93 \xF0\x9F\x9A\x80";
    const auto retitled =
        xterm("LarkspanRetitled", "Before",
              "while [ ! -e '" + flag + "' ]; do sleep 0.02; done; printf '\\033]2;%s\\007' '" + after +
                  "'; exec sleep 600");
    bringToFront(*workspace, retitled.window, "LarkspanRetitled");
    EXPECT_EQ(workspace->focusedWindowTitle(retitled.pid), "Before");
    std::ofstream(flag) << "go";
    EXPECT_TRUE(test::waitUntil([&] { return workspace->focusedWindowTitle(retitled.pid) == after; }))
        << workspace->focusedWindowTitle(retitled.pid).value_or("(none)");
}

TEST_F(X11WorkspaceTest, ActivationFiresOncePerApplicationAndNotForOurOwnUtilityWindow) {
    const auto other = xterm("LarkspanOther", "Other");
    // This process owns several windows, as one application: two of a class, a dialog that belongs to
    // its main window's application whatever its own class, a popover-like tool window standing in
    // for Larkspan's, and windows whose class or GTK application id (which wins) say otherwise.
    test::TestWindows windows(display->name());
    ASSERT_TRUE(windows.connected());
    const auto first = show(windows, {"same", "LarkspanSame", "Same one"});
    const auto second = show(windows, {"same", "LarkspanSame", "Same two"});
    const auto dialog = show(windows, {"dialog", "LarkspanDialog", "Save changes?", "",
                                       static_cast<std::uint32_t>(std::stoul(first))});
    const auto popover = show(windows, {"larkspan", "Larkspan", "Today", "", 0, true});
    const auto dashboard = show(windows, {"larkspan", "Larkspan", "Larkspan"});
    const auto gtk = show(windows, {"whatever", "Whatever", "GTK window", "larkspan-beta"});
    auto workspace = makeWorkspace();

    bringToFront(*workspace, other.window, "LarkspanOther");
    bringToFront(*workspace, first, "LarkspanSame");
    ASSERT_TRUE(activationsReach(1));
    const int afterFirst = settledActivations();
    // Window to window within the application: nothing. Then another application: exactly one.
    focus(*workspace, second, "Same two");
    focus(*workspace, dialog, "Save changes?");
    EXPECT_EQ(frontmostID(*workspace), "LarkspanSame");
    bringToFront(*workspace, other.window, "LarkspanOther");
    ASSERT_TRUE(activationsReach(afterFirst + 1));
    EXPECT_EQ(settledActivations(), afterFirst + 1);

    // Our own utility window leaves the application before it in front, and announces nothing.
    display->activate(popover);
    ASSERT_TRUE(test::waitUntil([&] {
        return display->run({"xdotool", "getactivewindow"}) == popover + "\n";
    }));
    EXPECT_EQ(frontmostID(*workspace), "LarkspanOther");
    EXPECT_EQ(workspace->frontWindowTitle("LarkspanOther"), "Other");
    EXPECT_EQ(settledActivations(), afterFirst + 1);
    // Larkspan's own ordinary window is Larkspan in front, like any other application.
    bringToFront(*workspace, dashboard, "Larkspan");
    EXPECT_EQ(workspace->focusedWindowTitle(getpid()), "Larkspan");
    bringToFront(*workspace, gtk, "larkspan-beta");

    // A removed handler is not called; the workspace going away drops what is still queued.
    ASSERT_TRUE(activationsReach(afterFirst + 3));
    const int before = settledActivations();
    workspace->setApplicationActivatedHandler({});
    bringToFront(*workspace, first, "LarkspanSame");
    workspace.reset();
    mainQueue->drain();
    EXPECT_EQ(activations, before);
}

TEST_F(X11WorkspaceTest, SurvivesTheServerGoingAwayAndReconnects) {
    auto workspace = makeWorkspace();
    bringToFront(*workspace, xterm("LarkspanAlpha", "Alpha").window, "LarkspanAlpha");
    const int before = settledActivations();

    display->stopServer();
    const std::clock_t cpu = std::clock();
    EXPECT_FALSE(workspace->frontmostApplication());
    EXPECT_FALSE(workspace->canReadWindows());
    EXPECT_EQ(workspace->secondsSinceLastInput(), 0);
    EXPECT_TRUE(workspace->runningApplications().empty());
    std::this_thread::sleep_for(1500ms);
    // Waiting for the server is sleeping, not spinning: a busy loop would burn the whole interval.
    EXPECT_LT(static_cast<double>(std::clock() - cpu) / CLOCKS_PER_SEC, 0.5);

    ASSERT_TRUE(display->restartServer()) << display->error();
    bringToFront(*workspace, xterm("LarkspanBack", "Back again").window, "LarkspanBack");
    // The watcher is back too: the application that came to the front meanwhile is announced.
    EXPECT_TRUE(activationsReach(before + 1, 8000ms));
}

TEST_F(X11WorkspaceTest, WindowsAndIdleTimeCanBeReadOnlyInAnX11Session) {
    auto x11 = makeWorkspace();
    EXPECT_TRUE(x11->canReadWindows());
    // Idle seconds grow while nothing happens and drop after input.
    display->run({"xdotool", "mousemove", "10", "10"});
    double idle = 0;
    ASSERT_TRUE(test::waitUntil([&] { return (idle = x11->secondsSinceLastInput()) >= 1.0; }, 3000ms))
        << idle;
    display->run({"xdotool", "mousemove", "300", "200"});
    EXPECT_LT(x11->secondsSinceLastInput(), idle);

    // XWayland is not trusted: nothing is reported even though an X server answers.
    bringToFront(*x11, xterm("LarkspanAlpha", "Alpha").window, "LarkspanAlpha");
    auto wayland = makeWorkspace(true);
    EXPECT_FALSE(wayland->canReadWindows());
    EXPECT_FALSE(wayland->frontmostApplication());
    EXPECT_EQ(wayland->secondsSinceLastInput(), 0);

    // No display at all; the prompt is one notification saying what is needed.
    X11Workspace none(SessionEnvironment{},
                      std::make_shared<AppIdentity>(std::make_shared<DesktopEntries>(
                          std::vector<std::filesystem::path>{}, std::vector<std::string>{})),
                      mainQueue, notifier);
    EXPECT_FALSE(none.canReadWindows());
    EXPECT_TRUE(notifier->sent.empty());
    none.promptForWindowAccess();
    ASSERT_EQ(notifier->sent.size(), 1u);
    EXPECT_NE(notifier->sent[0].body.find("needs an X11 session"), std::string::npos);
}

}  // namespace
}  // namespace larkspan
