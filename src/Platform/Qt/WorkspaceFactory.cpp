// Backend choice. The probes cost one Wayland round trip and one bus call at start-up.
#include "Platform/Qt/WorkspaceFactory.h"

#include <QDBusConnection>
#include <QStandardPaths>

#include "Platform/Linux/ReportedWorkspace.h"
#include "Platform/Linux/Wayland/WaylandSource.h"
#include "Platform/Linux/X11Workspace.h"
#include "Platform/Qt/GnomeShellSource.h"
#include "Platform/Qt/IdleTimePoll.h"
#include "Platform/Qt/KWinSource.h"

namespace larkspan {

namespace {

const DesktopNotice kWaylandAccess = {
    X11Workspace::kWindowAccessNotificationID, X11Workspace::kWindowAccessTitle,
    "This Wayland desktop does not tell other applications which window is in front. Larkspan reads "
    "windows on sway, Hyprland, river, labwc, Wayfire, KDE Plasma and GNOME, and in X11 sessions: choose one "
    "at "
    "the login screen to record which applications you use."};

const DesktopNotice kGnomeAccess = {
    X11Workspace::kWindowAccessNotificationID, X11Workspace::kWindowAccessTitle,
    "On GNOME only Shell extensions see other windows. Run \u201Clarkspan --install-gnome-extension\u201D, "
    "log out and back in, then run \u201Cgnome-extensions enable larkspan@larkspan.org\u201D (or turn on "
    "\u201CLarkspan window reporter\u201D in the Extensions application)."};

const DesktopNotice kWaylandLost = {
    "larkspan-window-source-lost", "Larkspan lost sight of your windows",
    "The compositor went away. Tracking resumes by itself as soon as it is back."};

const DesktopNotice kKWinLost = {"larkspan-window-source-lost", "Larkspan lost sight of your windows",
                                 "KWin went away. Tracking resumes by itself as soon as it is back."};

const DesktopNotice kGnomeLost = {
    "larkspan-window-source-lost", "Larkspan lost sight of your windows",
    "Larkspan's GNOME Shell extension stopped answering (the Shell restarted, or the extension was "
    "turned off). Tracking resumes by itself as soon as it is back."};

// Silence from the screen saver's bus interface, for a compositor without an idle protocol.
std::shared_ptr<void> screenSaverIdle(std::shared_ptr<ReportedWorkspace> workspace) {
    auto poll = std::make_shared<IdleTimePoll>(std::move(workspace), IdleTimePoll::kScreenSaver);
    poll->startOnSessionBus();
    return poll;
}

}  // namespace

SessionWorkspace makeSessionWorkspace(const SessionEnvironment& session,
                                      std::shared_ptr<AppIdentity> identity,
                                      std::shared_ptr<MainQueue> mainQueue,
                                      std::shared_ptr<Notifier> notifier) {
    if (!session.wayland) {
        auto x11 = std::make_shared<X11Workspace>(session, std::move(identity), std::move(mainQueue),
                                                  std::move(notifier));
        return {x11, x11, {}, "x11"};
    }
    const auto offer = probeWayland(session.waylandDisplay);
    if (offer.foreignToplevels) {
        auto reported = std::make_shared<ReportedWorkspace>(
            std::move(identity), std::move(mainQueue), std::move(notifier), kWaylandAccess, kWaylandLost);
        // Readable from the start: the first capture must not wait for the thread's first round trip.
        reported->sourceConnected(true);
        SessionWorkspace result{reported,
                                reported,
                                {std::make_shared<WaylandSource>(session.waylandDisplay, reported)},
                                "wlroots"};
        if (!offer.idleNotify)
            result.sources.push_back(screenSaverIdle(reported));
        return result;
    }
    const auto bus = QDBusConnection::sessionBus();
    if (KWinSource::runsOn(bus)) {
        auto reported = std::make_shared<ReportedWorkspace>(std::move(identity), std::move(mainQueue),
                                                            std::move(notifier), kWaylandAccess, kKWinLost);
        reported->sourceConnected(true);
        const auto script = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
                            QStringLiteral("/larkspan-kwin.js");
        SessionWorkspace result{
            reported, reported, {std::make_shared<KWinSource>(reported, bus, script)}, "kwin"};
        result.sources.push_back(offer.idleNotify
                                     ? std::make_shared<WaylandSource>(session.waylandDisplay, reported,
                                                                       WaylandSource::Reads::silenceOnly)
                                     : screenSaverIdle(reported));
        return result;
    }
    if (GnomeShellSource::runsOn(bus)) {
        auto reported = std::make_shared<ReportedWorkspace>(std::move(identity), std::move(mainQueue),
                                                            std::move(notifier), kGnomeAccess, kGnomeLost);
        reported->sourceConnected(GnomeShellSource::extensionPresent(bus));
        return {reported, reported, {std::make_shared<GnomeShellSource>(reported, bus)}, "gnome"};
    }
    auto none = std::make_shared<ReportedWorkspace>(std::move(identity), std::move(mainQueue),
                                                    std::move(notifier), kWaylandAccess, kWaylandLost);
    return {none, none, {}, "none"};
}

}  // namespace larkspan
