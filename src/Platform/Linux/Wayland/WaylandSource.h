// Windows and input silence of a Wayland compositor, fed into a ReportedWorkspace. A wlroots
// compositor (sway, Hyprland, river, labwc, Wayfire) lists every toplevel with its app_id, title and
// whether it is activated (zwlr_foreign_toplevel_manager_v1); it gives no pids. Silence comes from
// ext-idle-notify-v1, or KDE's idle protocol on compositors that predate it; KWin offers those too,
// so on Plasma the source reads silence only while the windows come from a KWin script.
//
// One thread owns its own wl_display connection and blocks in poll() on it and a wake pipe, so
// neither the main thread nor the monitor queue ever waits for the compositor. When the compositor
// goes away, the workspace is told and the thread reconnects with a growing pause (up to 4 s).
#pragma once

#include <memory>
#include <string>
#include <thread>

#include "Platform/Linux/ReportedWorkspace.h"

namespace larkspan {

// What a Wayland compositor offers of the protocols Larkspan reads.
struct WaylandOffer {
    bool connected = false;         // a compositor answered at all
    bool foreignToplevels = false;  // zwlr_foreign_toplevel_manager_v1
    bool idleNotify = false;        // ext_idle_notifier_v1 or org_kde_kwin_idle
};

// Connects to `display` (a WAYLAND_DISPLAY value; empty means the default), reads the globals once
// and disconnects. Takes one round trip.
WaylandOffer probeWayland(const std::string& display);

class WaylandSource {
public:
    enum class Reads { windowsAndSilence, silenceOnly };

    // Seconds of silence after which the compositor tells us the user is idle. The last input is
    // then that long ago; before that the user counts as active, well below any idle threshold.
    static constexpr int kSilenceStepMs = 5000;

    // With `silenceOnly` the workspace's windows and connection state are left to another source.
    WaylandSource(std::string display, std::shared_ptr<ReportedWorkspace> workspace,
                  Reads reads = Reads::windowsAndSilence);
    // Stops and joins the thread, then disconnects.
    ~WaylandSource();
    WaylandSource(const WaylandSource&) = delete;
    WaylandSource& operator=(const WaylandSource&) = delete;

private:
    struct Session;
    void run();
    // Serves one connection until it breaks (false) or the source stops (true).
    bool serve(Session& session);
    // Sleeps up to `ms`; false when the source is stopping.
    bool pause(int ms);

    const std::string display_;
    const std::shared_ptr<ReportedWorkspace> workspace_;
    const Reads reads_;
    int wakePipe_[2] = {-1, -1};  // written once to stop the thread
    std::thread thread_;
};

}  // namespace larkspan
