// The Workspace of an X11 desktop with an EWMH window manager. Queries use one shared connection
// from any thread; activation is watched on a thread of its own with a second connection, so the
// main thread never waits for the X server. When the server goes away, queries answer "nothing"
// and both connections are re-established, at most once a second, when it is back.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <memory>
#include <mutex>
#include <thread>

#include "Platform/Linux/ActivationHandler.h"
#include "Platform/Linux/AppIdentity.h"
#include "Platform/Linux/ApplicationWindows.h"
#include "Platform/Linux/SessionEnvironment.h"
#include "Platform/MainQueue.h"
#include "Platform/Notifier.h"
#include "Platform/Workspace.h"

namespace larkspan {

class XcbConnection;

class X11Workspace final : public Workspace, public ApplicationWindows {
public:
    // Id, title and body of the notification that stands in for a permission prompt.
    static constexpr const char* kWindowAccessNotificationID = "larkspan-window-access";
    static constexpr const char* kWindowAccessTitle = "Larkspan can't see your windows";
    static constexpr const char* kWindowAccessBody =
        "Window tracking needs an X11 session. Choose an X11 (Xorg) session at the login screen to record "
        "which applications you use.";

    // Uses `session.display`. In a Wayland session, or without a display, the workspace reports
    // nothing and never connects: XWayland sees only X clients, and its idle time ignores input to
    // native windows, so its answers would be wrong rather than missing.
    X11Workspace(SessionEnvironment session, std::shared_ptr<AppIdentity> identity,
                 std::shared_ptr<MainQueue> mainQueue, std::shared_ptr<Notifier> notifier);
    // Stops and joins the event thread.
    ~X11Workspace() override;
    X11Workspace(const X11Workspace&) = delete;
    X11Workspace& operator=(const X11Workspace&) = delete;

    std::optional<RunningApplication> frontmostApplication() override;
    std::vector<RunningApplication> runningApplications() override;
    std::optional<std::string> focusedWindowTitle(std::int64_t pid) override;
    // 0 when the server lacks MIT-SCREEN-SAVER or cannot be reached: the user is then never away.
    double secondsSinceLastInput() override;
    void setApplicationActivatedHandler(std::function<void()> handler) override;
    bool canReadWindows() override;
    void promptForWindowAccess() override;

    std::optional<FrontWindow> frontWindow() override;
    std::optional<std::string> frontWindowTitle(const std::string& bundleID) override;

private:
    // What makes one application different from another for the activation notice.
    struct ActiveKey {
        std::int64_t pid = 0;
        std::optional<std::string> bundleID;
        bool operator==(const ActiveKey&) const = default;
    };

    std::shared_ptr<XcbConnection> queryConnection();
    // The active window, except that this process's own utility windows (the tray popover) leave
    // the window that was active before them in front: glancing at the popover is not using Larkspan.
    std::uint32_t frontWindow(XcbConnection& connection);
    void watchActivation();
    // Runs one connection's event loop until it breaks (false) or the workspace stops (true).
    bool pumpEvents(XcbConnection& connection, std::optional<ActiveKey>& last);
    std::optional<ActiveKey> activeKey(XcbConnection& connection);
    // Sleeps up to `delay`; false when the workspace is stopping.
    bool pause(std::chrono::milliseconds delay);

    const SessionEnvironment session_;
    const std::shared_ptr<AppIdentity> identity_;
    const std::shared_ptr<MainQueue> mainQueue_;
    const std::shared_ptr<Notifier> notifier_;
    ActivationHandler handler_;

    std::mutex queryMutex_;
    std::shared_ptr<XcbConnection> query_;
    std::chrono::steady_clock::time_point lastConnectAttempt_;
    bool attemptedConnect_ = false;

    const std::int64_t ownPid_;
    std::atomic<std::uint32_t> lastOtherFront_{0};  // the last front window not our own utility window

    int wakePipe_[2] = {-1, -1};  // written once to stop the event thread
    std::thread watcher_;
};

}  // namespace larkspan
