// The Workspace of a desktop that tells us about its windows instead of letting us read them: a
// Wayland compositor over a protocol, or a shell script or extension over D-Bus. A backend reports
// windows and input silence from any thread; captures read the latest report. Identity goes through
// the same desktop-entry path as X11, so an application gets one identifier in both sessions.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "Platform/Linux/ActivationHandler.h"
#include "Platform/Linux/AppIdentity.h"
#include "Platform/Linux/ApplicationWindows.h"
#include "Platform/MainQueue.h"
#include "Platform/Notifier.h"
#include "Platform/Workspace.h"

namespace larkspan {

// One window as the desktop describes it. Text fields may hold any bytes; they are cleaned on report.
struct ReportedWindow {
    std::uint64_t id = 0;       // the backend's handle, unique among its open windows
    std::string appID{};        // Wayland app_id or GNOME app id: usually a desktop id
    std::string wmClass{};      // X11 WM_CLASS / KWin resourceClass; empty when unknown
    std::string desktopFile{};  // desktop file name or path the shell matched; empty when unknown
    std::string title{};
    std::int64_t pid = 0;  // 0 when the desktop does not say
    bool operator==(const ReportedWindow&) const = default;
};

// The notification that stands in for a permission prompt, and the one shown when the source is lost.
struct DesktopNotice {
    std::string id;
    std::string title;
    std::string body;
};

class ReportedWorkspace final : public Workspace, public ApplicationWindows {
public:
    // `access` is shown by promptForWindowAccess while no source is connected; `lost` once per
    // process when a connected source goes away.
    ReportedWorkspace(std::shared_ptr<AppIdentity> identity, std::shared_ptr<MainQueue> mainQueue,
                      std::shared_ptr<Notifier> notifier, DesktopNotice access, DesktopNotice lost);

    // Backend side, any thread. A window's new state; `active` puts it in front, and the activation
    // handler runs when that brings another application (id or pid) to the front.
    void windowChanged(ReportedWindow window, bool active);
    // The window was closed; when it was in front, nothing is.
    void windowClosed(std::uint64_t id);
    // The source came (true) or went (false). Going forgets every window and the input state.
    void sourceConnected(bool connected);
    // The time of the last input, or nothing while the user is active.
    void inputSilentSince(std::optional<std::chrono::steady_clock::time_point> lastInput);

    std::optional<RunningApplication> frontmostApplication() override;
    std::vector<RunningApplication> runningApplications() override;
    std::optional<std::string> focusedWindowTitle(std::int64_t pid) override;
    double secondsSinceLastInput() override;
    void setApplicationActivatedHandler(std::function<void()> handler) override;
    bool canReadWindows() override;
    void promptForWindowAccess() override;

    std::optional<FrontWindow> frontWindow() override;
    std::optional<std::string> frontWindowTitle(const std::string& bundleID) override;

private:
    RunningApplication identify(const ReportedWindow& window) const;

    const std::shared_ptr<AppIdentity> identity_;
    const std::shared_ptr<MainQueue> mainQueue_;
    const std::shared_ptr<Notifier> notifier_;
    const DesktopNotice access_;
    const DesktopNotice lost_;
    ActivationHandler handler_;

    std::mutex mutex_;                     // guards the fields below
    std::vector<ReportedWindow> windows_;  // most recently active first
    bool frontActive_ = false;             // whether windows_.front() is in front now
    std::optional<std::pair<std::string, std::int64_t>> lastFrontApp_;  // app id and pid last announced
    std::optional<std::chrono::steady_clock::time_point> silentSince_;
    bool connected_ = false;
    bool lostNoticeShown_ = false;
};

}  // namespace larkspan
