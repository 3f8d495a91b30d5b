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

    std::shared_ptr<X11Workspace> makeWorkspace(bool wayland = false) {
        SessionEnvironment session;
        session.display = display->name();
        session.wayland = wayland;
        auto entries = std::make_shared<DesktopEntries>(std::vector{kData / "x11/applications"},
                                                        std::vector<std::string>{"de"});
        return std::make_shared<X11Workspace>(session, std::make_shared<AppIdentity>(entries), mainQueue,
                                              notifier);
    }

    pid_t xterm(const std::string& wmClass, const std::string& title,
                const std::string& command = "exec sleep 600") {
        return display->spawn({"xterm", "-u8", "-class", wmClass, "-T", title, "-e", "sh", "-c", command});
    }

    std::string frontmostID(Workspace& workspace) {
        auto app = workspace.frontmostApplication();
        return app && app->bundleID ? *app->bundleID : "(none)";
    }

    // The one mapped window of this class; empty (and a failure) when there is not exactly one.
    std::string windowOf(const std::string& wmClass) {
        const auto windows = display->windowsOfClass(wmClass);
        EXPECT_EQ(windows.size(), 1u) << wmClass;
        return windows.size() == 1 ? windows[0] : std::string();
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
    void focus(Workspace& workspace, const std::string& window, std::int64_t pid, const std::string& title) {
        ASSERT_TRUE(activateUntil(window, [&] { return workspace.focusedWindowTitle(pid) == title; }))
            << workspace.focusedWindowTitle(pid).value_or("(none)") << ", expected " << title;
    }

    std::unique_ptr<test::XvfbDisplay> display;
    std::shared_ptr<test::ManualMainQueue> mainQueue = std::make_shared<test::ManualMainQueue>();
    std::shared_ptr<test::RecordingNotifier> notifier = std::make_shared<test::RecordingNotifier>();
};

// The identity of a window's application and its plain title are checked end to end; here what
// only the workspace shows.
TEST_F(X11WorkspaceTest, ReportsTheFrontmostApplicationAndEveryWindowsTitle) {
    const pid_t alpha = xterm("LarkspanAlpha", "Alpha plain");
    const pid_t beta = xterm("LarkspanBeta", "Beta");
    auto workspace = makeWorkspace();
    EXPECT_TRUE(workspace->canReadWindows());
    bringToFront(*workspace, windowOf("LarkspanBeta"), "larkspan-beta");
    EXPECT_EQ(workspace->frontmostApplication()->localizedName, "Beta-Werkzeug");
    EXPECT_EQ(workspace->frontmostApplication()->pid, beta);
    // An application behind still has a title, also when asked by its identifier; a process without
    // windows has none.
    EXPECT_EQ(workspace->focusedWindowTitle(alpha), "Alpha plain");
    EXPECT_EQ(workspace->frontWindowTitle("LarkspanAlpha"), "Alpha plain");
    EXPECT_FALSE(workspace->focusedWindowTitle(getpid()));

    std::set<std::pair<std::string, std::int64_t>> running;
    for (const auto& app : workspace->runningApplications())
        running.emplace(app.bundleID.value_or(""), app.pid);
    EXPECT_TRUE(running.count({"LarkspanAlpha", alpha}));
    EXPECT_TRUE(running.count({"larkspan-beta", beta}));

    // A title that changes while focused is read afresh, emoji and all.
    test::TempDir dir;
    const auto flag = (dir / "flag").string();
    const std::string after = "After \xE2\x9C\x93 \xF0\x9F\x9A\x80";
    const pid_t retitled =
        xterm("LarkspanRetitled", "Before",
              "while [ ! -e '" + flag + "' ]; do sleep 0.02; done; printf '\\033]2;%s\\007' '" + after +
                  "'; exec sleep 600");
    bringToFront(*workspace, windowOf("LarkspanRetitled"), "LarkspanRetitled");
    EXPECT_EQ(workspace->focusedWindowTitle(retitled), "Before");
    std::ofstream(flag) << "go";
    EXPECT_TRUE(test::waitUntil([&] { return workspace->focusedWindowTitle(retitled) == after; }))
        << workspace->focusedWindowTitle(retitled).value_or("(none)");
}

TEST_F(X11WorkspaceTest, ActivationFiresOncePerApplicationNotPerWindow) {
    xterm("LarkspanOther", "Other");
    const auto other = windowOf("LarkspanOther");
    // One process with two windows: one application.
    test::TestWindows windows(display->name());
    ASSERT_TRUE(windows.connected());
    const auto first = show(windows, {"same", "LarkspanSame", "Same one"});
    const auto second = show(windows, {"same", "LarkspanSame", "Same two"});
    // A dialog belongs to its main window's application, whatever its own class.
    const auto dialog = show(windows, {"dialog", "LarkspanDialog", "Save changes?", "",
                                       static_cast<std::uint32_t>(std::stoul(first))});

    auto workspace = makeWorkspace();
    int activations = 0;
    workspace->setApplicationActivatedHandler([&] { ++activations; });
    const auto activationsSeen = [&](int expected) {
        return test::waitUntil([&] {
            mainQueue->drain();
            return activations >= expected;
        });
    };

    bringToFront(*workspace, other, "LarkspanOther");
    bringToFront(*workspace, first, "LarkspanSame");
    ASSERT_TRUE(activationsSeen(1));
    mainQueue->drain();
    const int afterFirst = activations;

    // Window to window within the application: nothing. Then another application: exactly one.
    focus(*workspace, second, getpid(), "Same two");
    focus(*workspace, dialog, getpid(), "Save changes?");
    EXPECT_EQ(frontmostID(*workspace), "LarkspanSame");
    bringToFront(*workspace, other, "LarkspanOther");
    ASSERT_TRUE(activationsSeen(afterFirst + 1));
    // The watcher handles notices in order, so a notice for the window switch would be in by now.
    std::this_thread::sleep_for(100ms);
    mainQueue->drain();
    EXPECT_EQ(activations, afterFirst + 1);

    // A removed handler is not called; the workspace going away drops what is still queued.
    workspace->setApplicationActivatedHandler({});
    bringToFront(*workspace, first, "LarkspanSame");
    workspace.reset();
    mainQueue->drain();
    EXPECT_EQ(activations, afterFirst + 1);
}

TEST_F(X11WorkspaceTest, OurOwnUtilityWindowLeavesTheApplicationBeforeItInFront) {
    const pid_t other = xterm("LarkspanOther", "Other");
    const auto otherWindow = windowOf("LarkspanOther");
    // This process stands in for Larkspan: a popover-like tool window and an ordinary main window.
    test::TestWindows windows(display->name());
    const auto popover = show(windows, {"larkspan", "Larkspan", "Today", "", 0, true});
    const auto dashboard = show(windows, {"larkspan", "Larkspan", "Larkspan"});
    // A GTK application id beats the window class.
    const auto gtk = show(windows, {"whatever", "Whatever", "GTK window", "larkspan-beta"});
    auto workspace = makeWorkspace();
    int activations = 0;
    workspace->setApplicationActivatedHandler([&] { ++activations; });
    bringToFront(*workspace, otherWindow, "LarkspanOther");
    mainQueue->drain();
    const int before = activations;

    const auto activeIs = [&](const std::string& window) {
        return test::waitUntil([&] { return display->run({"xdotool", "getactivewindow"}) == window + "\n"; });
    };
    display->activate(popover);
    ASSERT_TRUE(activeIs(popover));
    EXPECT_EQ(frontmostID(*workspace), "LarkspanOther");
    EXPECT_EQ(workspace->focusedWindowTitle(other), "Other");
    EXPECT_EQ(workspace->frontWindowTitle("LarkspanOther"), "Other");
    std::this_thread::sleep_for(100ms);
    mainQueue->drain();
    EXPECT_EQ(activations, before);

    // Larkspan's own ordinary window is Larkspan in front, like any other application.
    bringToFront(*workspace, dashboard, "Larkspan");
    EXPECT_EQ(workspace->focusedWindowTitle(getpid()), "Larkspan");
    bringToFront(*workspace, gtk, "larkspan-beta");
}

TEST_F(X11WorkspaceTest, SurvivesTheServerGoingAwayAndReconnects) {
    xterm("LarkspanAlpha", "Alpha");
    auto workspace = makeWorkspace();
    int activations = 0;
    workspace->setApplicationActivatedHandler([&] { ++activations; });
    bringToFront(*workspace, windowOf("LarkspanAlpha"), "LarkspanAlpha");
    std::this_thread::sleep_for(100ms);
    mainQueue->drain();
    activations = 0;

    display->stopServer();
    const std::clock_t before = std::clock();
    EXPECT_FALSE(workspace->frontmostApplication());
    EXPECT_FALSE(workspace->canReadWindows());
    EXPECT_EQ(workspace->secondsSinceLastInput(), 0);
    EXPECT_TRUE(workspace->runningApplications().empty());
    std::this_thread::sleep_for(1500ms);
    // Waiting for the server is sleeping, not spinning: a busy loop would burn the whole interval.
    EXPECT_LT(static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC, 0.5);

    ASSERT_TRUE(display->restartServer()) << display->error();
    xterm("LarkspanBack", "Back again");
    const auto back = windowOf("LarkspanBack");
    bringToFront(*workspace, back, "LarkspanBack");
    EXPECT_TRUE(workspace->canReadWindows());
    // The watcher is back too: the application that came to the front meanwhile is announced.
    EXPECT_TRUE(test::waitUntil(
        [&] {
            mainQueue->drain();
            return activations >= 1;
        },
        8000ms));
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
    xterm("LarkspanAlpha", "Alpha");
    bringToFront(*x11, windowOf("LarkspanAlpha"), "LarkspanAlpha");
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

    // A server without the screen-saver extension: idle reads zero and tracking goes on.
    display = std::make_unique<test::XvfbDisplay>(test::XvfbDisplay::Options{.screenSaverExtension = false});
    ASSERT_TRUE(display->ready()) << display->error();
    xterm("LarkspanAlpha", "Alpha");
    auto plain = makeWorkspace();
    bringToFront(*plain, windowOf("LarkspanAlpha"), "LarkspanAlpha");
    std::this_thread::sleep_for(1100ms);
    EXPECT_EQ(plain->secondsSinceLastInput(), 0);
}

}  // namespace
}  // namespace larkspan
