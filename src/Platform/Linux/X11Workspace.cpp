// X11 workspace: EWMH reads on a shared query connection, activation notices from a watcher thread
// that blocks in poll() on its own connection and a wake pipe.
#include "Platform/Linux/X11Workspace.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <set>

#include "Platform/Linux/ScreenSaverIdle.h"
#include "Platform/Linux/XcbConnection.h"

namespace larkspan {

namespace {

constexpr auto kReconnectInterval = std::chrono::seconds(1);  // query connection, at most this often
constexpr auto kFirstRetry = std::chrono::milliseconds(250);  // watcher back-off, doubling
constexpr auto kLongestRetry = std::chrono::seconds(4);

}  // namespace

X11Workspace::X11Workspace(SessionEnvironment session, std::shared_ptr<AppIdentity> identity,
                           std::shared_ptr<MainQueue> mainQueue, std::shared_ptr<Notifier> notifier)
    : session_(std::move(session)),
      identity_(std::move(identity)),
      mainQueue_(std::move(mainQueue)),
      notifier_(std::move(notifier)),
      ownPid_(getpid()) {
    if (session_.wayland || session_.display.empty())
        return;
    if (pipe2(wakePipe_, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    watcher_ = std::thread([this] { watchActivation(); });
}

X11Workspace::~X11Workspace() {
    if (watcher_.joinable()) {
        const char stop = 1;
        while (write(wakePipe_[1], &stop, 1) < 0 && errno == EINTR) {
        }
        watcher_.join();
    }
    for (int fd : wakePipe_) {
        if (fd >= 0)
            close(fd);
    }
}

std::shared_ptr<XcbConnection> X11Workspace::queryConnection() {
    if (session_.wayland || session_.display.empty())
        return nullptr;
    std::lock_guard lock(queryMutex_);
    if (query_ && !query_->broken())
        return query_;
    query_.reset();
    const auto now = std::chrono::steady_clock::now();
    if (attemptedConnect_ && now - lastConnectAttempt_ < kReconnectInterval)
        return nullptr;
    attemptedConnect_ = true;
    lastConnectAttempt_ = now;
    query_ = XcbConnection::open(session_.display);
    return query_;
}

std::uint32_t X11Workspace::frontWindow(XcbConnection& connection) {
    const auto active = connection.activeWindow();
    // The window seen last is already known not to be ours: no second look at its properties.
    if (active == XCB_WINDOW_NONE || active == lastOtherFront_.load())
        return active;
    if (connection.isUtilityWindowOf(active, ownPid_))
        return lastOtherFront_.load();
    lastOtherFront_.store(active);
    return active;
}

std::optional<RunningApplication> X11Workspace::frontmostApplication() {
    auto connection = queryConnection();
    if (!connection)
        return std::nullopt;
    const auto window = frontWindow(*connection);
    if (window == XCB_WINDOW_NONE)
        return std::nullopt;
    // A window that vanished between the two reads gives empty clues: nothing is in front.
    const auto clues = connection->identityClues({window});
    if (connection->broken() || clues.front() == WindowClues{})
        return std::nullopt;
    return identity_->identify(clues.front());
}

std::vector<RunningApplication> X11Workspace::runningApplications() {
    std::vector<RunningApplication> apps;
    auto connection = queryConnection();
    if (!connection)
        return apps;
    std::set<std::pair<std::int64_t, std::optional<std::string>>> seen;
    for (const auto& clues : connection->identityClues(connection->clientsTopFirst())) {
        if (clues == WindowClues{})
            continue;
        auto app = identity_->identify(clues);
        if (seen.emplace(app.pid, app.bundleID).second)
            apps.push_back(std::move(app));
    }
    return apps;
}

std::optional<std::string> X11Workspace::focusedWindowTitle(std::int64_t pid) {
    auto connection = queryConnection();
    if (!connection || pid <= 0)
        return std::nullopt;
    // The front window when it is this process's; else the process's topmost window.
    const auto active = frontWindow(*connection);
    if (active != XCB_WINDOW_NONE) {
        std::int64_t activePid = 0;
        auto title = connection->title(active, &activePid);
        if (title && activePid == pid)
            return title;
    }
    for (auto window : connection->clientsTopFirst()) {
        if (window == active)
            continue;
        std::int64_t windowPid = 0;
        auto title = connection->title(window, &windowPid);
        if (title && windowPid == pid)
            return title;
    }
    return std::nullopt;
}

std::optional<FrontWindow> X11Workspace::frontWindow() {
    auto connection = queryConnection();
    if (!connection)
        return std::nullopt;
    const auto active = frontWindow(*connection);
    if (active == XCB_WINDOW_NONE)
        return std::nullopt;
    FrontWindow front;
    auto title = connection->title(active, &front.pid);
    if (!title)
        return std::nullopt;
    front.title = std::move(*title);
    return front;
}

std::optional<std::string> X11Workspace::frontWindowTitle(const std::string& bundleID) {
    auto connection = queryConnection();
    if (!connection)
        return std::nullopt;
    auto windows = connection->clientsTopFirst();
    const auto active = frontWindow(*connection);
    if (auto it = std::find(windows.begin(), windows.end(), active); it != windows.end()) {
        std::rotate(windows.begin(), it, it + 1);
    }
    // Usually the application is in front; identify windows one by one and stop at the first hit.
    for (auto window : windows) {
        const auto clues = connection->identityClues({window});
        if (clues.front() == WindowClues{} || identity_->identify(clues.front()).bundleID != bundleID)
            continue;
        if (auto title = connection->title(window))
            return title;
    }
    return std::nullopt;
}

double X11Workspace::secondsSinceLastInput() {
    auto connection = queryConnection();
    if (!connection)
        return 0;
    return screenSaverIdleSeconds(*connection).value_or(0);
}

void X11Workspace::setApplicationActivatedHandler(std::function<void()> handler) {
    handler_.set(std::move(handler));
}

bool X11Workspace::canReadWindows() {
    return queryConnection() != nullptr;
}

void X11Workspace::promptForWindowAccess() {
    if (notifier_)
        notifier_->notify(kWindowAccessNotificationID, kWindowAccessTitle, kWindowAccessBody);
}

std::optional<X11Workspace::ActiveKey> X11Workspace::activeKey(XcbConnection& connection) {
    const auto window = frontWindow(connection);
    if (window == XCB_WINDOW_NONE || connection.broken())
        return std::nullopt;
    const auto clues = connection.identityClues({window});
    if (connection.broken() || clues.front() == WindowClues{})
        return std::nullopt;
    const auto app = identity_->identify(clues.front());
    return ActiveKey{app.pid, app.bundleID};
}

bool X11Workspace::pause(std::chrono::milliseconds delay) {
    pollfd wake{wakePipe_[0], POLLIN, 0};
    int ready;
    do {
        ready = poll(&wake, 1, static_cast<int>(delay.count()));
    } while (ready < 0 && errno == EINTR);
    return ready == 0;
}

void X11Workspace::watchActivation() {
    // The application active when the watcher (re)connects. Focus moving to nothing (the desktop,
    // a closed window) keeps it, so A → nothing → A is no change while A → nothing → B is one.
    std::optional<ActiveKey> last;
    auto retry = std::chrono::milliseconds(kFirstRetry);
    for (;;) {
        auto connection = XcbConnection::open(session_.display);
        if (connection && connection->watchRoot()) {
            retry = kFirstRetry;
            if (pumpEvents(*connection, last))
                return;
        }
        if (!pause(retry))
            return;
        retry = std::min<std::chrono::milliseconds>(retry * 2, kLongestRetry);
    }
}

bool X11Workspace::pumpEvents(XcbConnection& connection, std::optional<ActiveKey>& last) {
    const bool reconnected = last.has_value();
    const auto noteActive = [&](bool announce) {
        auto key = activeKey(connection);
        if (!key || key == last)
            return;
        last = std::move(key);
        if (!announce)
            return;
        handler_.announce(*mainQueue_);
    };
    // After a reconnect, an application that came to the front meanwhile is a change.
    noteActive(reconnected);

    pollfd fds[2] = {{connection.fileDescriptor(), POLLIN, 0}, {wakePipe_[0], POLLIN, 0}};
    for (;;) {
        bool changed = false;
        // Replies to our own queries can leave events queued; drain before blocking.
        while (auto* event = xcb_poll_for_event(connection.raw())) {
            changed = changed || connection.isActiveWindowChange(*event);
            std::free(event);
        }
        if (connection.broken())
            return false;
        if (changed) {
            noteActive(true);
            continue;
        }
        if (poll(fds, 2, -1) < 0 && errno != EINTR)
            return false;
        if (fds[1].revents & POLLIN)
            return true;
    }
}

}  // namespace larkspan
