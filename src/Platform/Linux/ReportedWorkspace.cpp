// Reported windows: one small list under a mutex. Reports arrive a few times a second at most
// (focus and title changes), captures every 4 seconds, so a vector and linear searches suffice.
#include "Platform/Linux/ReportedWorkspace.h"

#include <algorithm>
#include <set>
#include <utility>

#include "Platform/Linux/TextEncoding.h"

namespace larkspan {

namespace {

constexpr std::size_t kMaxText = 256 * 1024;  // bytes; longer titles are cut, as on X11

std::string cleaned(const std::string& text) {
    return sanitizedUtf8(std::string_view(text).substr(0, kMaxText));
}

// What tells one application from another for the activation notice.
std::pair<std::string, std::int64_t> appKey(const ReportedWindow& window) {
    return {window.appID.empty() ? window.wmClass : window.appID, window.pid};
}

}  // namespace

ReportedWorkspace::ReportedWorkspace(std::shared_ptr<AppIdentity> identity,
                                     std::shared_ptr<MainQueue> mainQueue, std::shared_ptr<Notifier> notifier,
                                     DesktopNotice access, DesktopNotice lost)
    : identity_(std::move(identity)),
      mainQueue_(std::move(mainQueue)),
      notifier_(std::move(notifier)),
      access_(std::move(access)),
      lost_(std::move(lost)) {}

void ReportedWorkspace::windowChanged(ReportedWindow window, bool active) {
    window.appID = cleaned(window.appID);
    window.wmClass = cleaned(window.wmClass);
    window.desktopFile = cleaned(window.desktopFile);
    window.title = cleaned(window.title);
    bool announce = false;
    {
        std::lock_guard lock(mutex_);
        auto it = std::find_if(windows_.begin(), windows_.end(),
                               [&](const ReportedWindow& known) { return known.id == window.id; });
        const bool wasFront = it == windows_.begin() && frontActive_;
        if (it == windows_.end())
            it = windows_.insert(windows_.end(), window);
        else
            *it = window;
        if (active) {
            std::rotate(windows_.begin(), it, it + 1);
            frontActive_ = true;
            // Focus moving to nothing keeps the last application, so A → nothing → A is no change.
            auto key = appKey(window);
            announce = key != lastFrontApp_;
            lastFrontApp_ = std::move(key);
        } else if (wasFront) {
            frontActive_ = false;
        }
    }
    if (announce)
        handler_.announce(*mainQueue_);
}

void ReportedWorkspace::windowClosed(std::uint64_t id) {
    std::lock_guard lock(mutex_);
    auto it = std::find_if(windows_.begin(), windows_.end(),
                           [&](const ReportedWindow& known) { return known.id == id; });
    if (it == windows_.end())
        return;
    if (it == windows_.begin())
        frontActive_ = false;
    windows_.erase(it);
}

void ReportedWorkspace::sourceConnected(bool connected) {
    bool notify = false;
    {
        std::lock_guard lock(mutex_);
        if (!connected) {
            windows_.clear();
            frontActive_ = false;
            silentSince_.reset();
            notify = connected_ && !std::exchange(lostNoticeShown_, true);
        }
        connected_ = connected;
    }
    if (notify && notifier_)
        notifier_->notify(lost_.id, lost_.title, lost_.body);
}

void ReportedWorkspace::inputSilentSince(std::optional<std::chrono::steady_clock::time_point> lastInput) {
    std::lock_guard lock(mutex_);
    silentSince_ = lastInput;
}

RunningApplication ReportedWorkspace::identify(const ReportedWindow& window) const {
    WindowClues clues;
    clues.gtkApplicationID = window.appID;
    clues.kdeDesktopFile = window.desktopFile;
    clues.wmInstance = window.wmClass.empty() ? window.appID : window.wmClass;
    clues.wmClass = clues.wmInstance;
    clues.pid = window.pid;
    return identity_->identify(clues);
}

std::optional<RunningApplication> ReportedWorkspace::frontmostApplication() {
    ReportedWindow front;
    {
        std::lock_guard lock(mutex_);
        if (!frontActive_)
            return std::nullopt;
        front = windows_.front();
    }
    return identify(front);
}

std::vector<RunningApplication> ReportedWorkspace::runningApplications() {
    std::vector<ReportedWindow> windows;
    {
        std::lock_guard lock(mutex_);
        windows = windows_;
    }
    std::vector<RunningApplication> apps;
    std::set<std::pair<std::int64_t, std::optional<std::string>>> seen;
    for (const auto& window : windows) {
        auto app = identify(window);
        if (seen.emplace(app.pid, app.bundleID).second)
            apps.push_back(std::move(app));
    }
    return apps;
}

std::optional<std::string> ReportedWorkspace::focusedWindowTitle(std::int64_t pid) {
    // Without pids (wlroots) every window has pid 0, and the front window is the one asked about.
    std::lock_guard lock(mutex_);
    for (const auto& window : windows_) {
        if (window.pid == pid)
            return window.title;
    }
    return std::nullopt;
}

std::optional<FrontWindow> ReportedWorkspace::frontWindow() {
    std::lock_guard lock(mutex_);
    if (!frontActive_ || windows_.empty())
        return std::nullopt;
    return FrontWindow{windows_.front().pid, windows_.front().title};
}

std::optional<std::string> ReportedWorkspace::frontWindowTitle(const std::string& bundleID) {
    std::vector<ReportedWindow> windows;
    {
        std::lock_guard lock(mutex_);
        windows = windows_;
    }
    for (const auto& window : windows) {
        if (identify(window).bundleID == bundleID)
            return window.title;
    }
    return std::nullopt;
}

double ReportedWorkspace::secondsSinceLastInput() {
    std::lock_guard lock(mutex_);
    if (!silentSince_)
        return 0;
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - *silentSince_).count();
}

void ReportedWorkspace::setApplicationActivatedHandler(std::function<void()> handler) {
    handler_.set(std::move(handler));
}

bool ReportedWorkspace::canReadWindows() {
    std::lock_guard lock(mutex_);
    return connected_;
}

void ReportedWorkspace::promptForWindowAccess() {
    if (notifier_)
        notifier_->notify(access_.id, access_.title, access_.body);
}

}  // namespace larkspan
