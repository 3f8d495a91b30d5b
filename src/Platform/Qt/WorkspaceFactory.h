// The one place that picks where window information comes from, by asking the session what it
// offers: an X11 display, a Wayland compositor's protocols, or KWin or GNOME Shell on the session bus.
// Environment variables only say which display to ask; the registry and the bus decide.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Platform/Linux/AppIdentity.h"
#include "Platform/Linux/ApplicationWindows.h"
#include "Platform/Linux/SessionEnvironment.h"
#include "Platform/MainQueue.h"
#include "Platform/Notifier.h"
#include "Platform/Workspace.h"

namespace larkspan {

struct SessionWorkspace {
    std::shared_ptr<Workspace> workspace;
    std::shared_ptr<ApplicationWindows> windows;  // the same object, as the script runner sees it
    std::vector<std::shared_ptr<void>> sources;   // the backend's threads and bus clients
    std::string backend;                          // "x11", "wlroots", "kwin", "gnome" or "none"
};

// X11 when the session is not Wayland. On Wayland: wlroots when the compositor lists toplevels;
// KWin when it is on the session bus (a script reports windows, the compositor silence); GNOME
// when the Shell is on the session bus (readable once Larkspan's extension is enabled);
// otherwise a workspace that reads nothing and whose prompt explains why. Input silence comes from the
// compositor's idle protocol, Mutter on GNOME, and org.freedesktop.ScreenSaver where neither is there.
// Call on the main thread.
SessionWorkspace makeSessionWorkspace(const SessionEnvironment& session,
                                      std::shared_ptr<AppIdentity> identity,
                                      std::shared_ptr<MainQueue> mainQueue,
                                      std::shared_ptr<Notifier> notifier);

}  // namespace larkspan
