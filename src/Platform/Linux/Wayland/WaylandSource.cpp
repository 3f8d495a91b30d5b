// Wayland window and silence source: the Wayland event loop on a thread of its own. All protocol objects and
// their listeners live on that thread; the only shared state is the ReportedWorkspace, which locks.
#include "Platform/Linux/Wayland/WaylandSource.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>
#include <wayland-client.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <map>

#include "ext-idle-notify-v1-client-protocol.h"
#include "idle-client-protocol.h"
#include "wlr-foreign-toplevel-management-unstable-v1-client-protocol.h"

namespace larkspan {

namespace {

constexpr int kFirstRetryMs = 250;  // reconnect pause, doubling
constexpr int kLongestRetryMs = 4000;

const char* displayName(const std::string& display) {
    return display.empty() ? nullptr : display.c_str();
}

std::string text(const char* value) {
    return value ? value : "";
}

}  // namespace

// One connection's objects. Destroyed (with every proxy) before the display is disconnected.
struct WaylandSource::Session {
    struct Toplevel {
        ReportedWindow window;
        bool activated = false;
        bool reported = false;  // `done` came at least once
    };

    ReportedWorkspace& workspace;
    const bool readWindows;
    bool established = false;  // the compositor offered what we read; a later break starts the pauses over
    wl_display* display = nullptr;
    wl_registry* registry = nullptr;
    wl_seat* seat = nullptr;
    zwlr_foreign_toplevel_manager_v1* manager = nullptr;
    ext_idle_notifier_v1* idleNotifier = nullptr;
    org_kde_kwin_idle* kdeIdle = nullptr;
    ext_idle_notification_v1* idleNotification = nullptr;
    org_kde_kwin_idle_timeout* kdeIdleTimeout = nullptr;
    std::map<zwlr_foreign_toplevel_handle_v1*, Toplevel> toplevels;

    Session(ReportedWorkspace& target, bool windows, wl_display* connection)
        : workspace(target), readWindows(windows), display(connection) {}
    ~Session() {
        for (auto& [handle, toplevel] : toplevels)
            zwlr_foreign_toplevel_handle_v1_destroy(handle);
        if (idleNotification)
            ext_idle_notification_v1_destroy(idleNotification);
        if (kdeIdleTimeout)
            org_kde_kwin_idle_timeout_release(kdeIdleTimeout);
        if (idleNotifier)
            ext_idle_notifier_v1_destroy(idleNotifier);
        if (kdeIdle)
            org_kde_kwin_idle_destroy(kdeIdle);
        if (manager)
            zwlr_foreign_toplevel_manager_v1_destroy(manager);
        if (seat)
            wl_seat_destroy(seat);
        if (registry)
            wl_registry_destroy(registry);
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    static void global(void* data, wl_registry* registry, std::uint32_t name, const char* interface,
                       std::uint32_t version) {
        auto& self = *static_cast<Session*>(data);
        if (std::strcmp(interface, zwlr_foreign_toplevel_manager_v1_interface.name) == 0 &&
            self.readWindows && !self.manager) {
            self.manager = static_cast<zwlr_foreign_toplevel_manager_v1*>(wl_registry_bind(
                registry, name, &zwlr_foreign_toplevel_manager_v1_interface, std::min(version, 3u)));
            zwlr_foreign_toplevel_manager_v1_add_listener(self.manager, &managerListener, &self);
        } else if (std::strcmp(interface, wl_seat_interface.name) == 0 && !self.seat) {
            self.seat = static_cast<wl_seat*>(wl_registry_bind(registry, name, &wl_seat_interface, 1));
        } else if (std::strcmp(interface, ext_idle_notifier_v1_interface.name) == 0 && !self.idleNotifier) {
            self.idleNotifier = static_cast<ext_idle_notifier_v1*>(
                wl_registry_bind(registry, name, &ext_idle_notifier_v1_interface, 1));
        } else if (std::strcmp(interface, org_kde_kwin_idle_interface.name) == 0 && !self.kdeIdle) {
            self.kdeIdle = static_cast<org_kde_kwin_idle*>(
                wl_registry_bind(registry, name, &org_kde_kwin_idle_interface, 1));
        }
    }
    static void globalRemove(void*, wl_registry*, std::uint32_t) {}
    static constexpr wl_registry_listener registryListener = {&global, &globalRemove};

    static void toplevel(void* data, zwlr_foreign_toplevel_manager_v1*,
                         zwlr_foreign_toplevel_handle_v1* handle) {
        auto& self = *static_cast<Session*>(data);
        auto& entry = self.toplevels[handle];
        entry.window.id = reinterpret_cast<std::uintptr_t>(handle);
        zwlr_foreign_toplevel_handle_v1_add_listener(handle, &handleListener, &self);
    }
    // The compositor dropped the manager: no more windows on this connection; treat it as broken.
    static void finished(void* data, zwlr_foreign_toplevel_manager_v1*) {
        auto& self = *static_cast<Session*>(data);
        zwlr_foreign_toplevel_manager_v1_destroy(self.manager);
        self.manager = nullptr;
    }
    static constexpr zwlr_foreign_toplevel_manager_v1_listener managerListener = {&toplevel, &finished};

    Toplevel* find(zwlr_foreign_toplevel_handle_v1* handle) {
        auto it = toplevels.find(handle);
        return it == toplevels.end() ? nullptr : &it->second;
    }
    static void title(void* data, zwlr_foreign_toplevel_handle_v1* handle, const char* value) {
        if (auto* entry = static_cast<Session*>(data)->find(handle))
            entry->window.title = text(value);
    }
    static void appID(void* data, zwlr_foreign_toplevel_handle_v1* handle, const char* value) {
        if (auto* entry = static_cast<Session*>(data)->find(handle))
            entry->window.appID = text(value);
    }
    static void outputEnter(void*, zwlr_foreign_toplevel_handle_v1*, wl_output*) {}
    static void outputLeave(void*, zwlr_foreign_toplevel_handle_v1*, wl_output*) {}
    static void state(void* data, zwlr_foreign_toplevel_handle_v1* handle, wl_array* states) {
        auto* entry = static_cast<Session*>(data)->find(handle);
        if (!entry)
            return;
        const auto* first = static_cast<const std::uint32_t*>(states->data);
        const auto* last = first + states->size / sizeof(std::uint32_t);
        entry->activated = std::find(first, last, ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED) != last;
    }
    static void done(void* data, zwlr_foreign_toplevel_handle_v1* handle) {
        auto& self = *static_cast<Session*>(data);
        if (auto* entry = self.find(handle)) {
            entry->reported = true;
            self.workspace.windowChanged(entry->window, entry->activated);
        }
    }
    static void closed(void* data, zwlr_foreign_toplevel_handle_v1* handle) {
        auto& self = *static_cast<Session*>(data);
        auto it = self.toplevels.find(handle);
        if (it == self.toplevels.end())
            return;
        if (it->second.reported)
            self.workspace.windowClosed(it->second.window.id);
        self.toplevels.erase(it);
        zwlr_foreign_toplevel_handle_v1_destroy(handle);
    }
    static void parent(void*, zwlr_foreign_toplevel_handle_v1*, zwlr_foreign_toplevel_handle_v1*) {}
    static constexpr zwlr_foreign_toplevel_handle_v1_listener handleListener = {
        &title, &appID, &outputEnter, &outputLeave, &state, &done, &closed, &parent};

    void silent(bool idle) {
        if (idle)
            workspace.inputSilentSince(std::chrono::steady_clock::now() -
                                       std::chrono::milliseconds(kSilenceStepMs));
        else
            workspace.inputSilentSince(std::nullopt);
    }
    static void idled(void* data, ext_idle_notification_v1*) { static_cast<Session*>(data)->silent(true); }
    static void resumed(void* data, ext_idle_notification_v1*) { static_cast<Session*>(data)->silent(false); }
    static constexpr ext_idle_notification_v1_listener idleListener = {&idled, &resumed};
    static void kdeIdled(void* data, org_kde_kwin_idle_timeout*) {
        static_cast<Session*>(data)->silent(true);
    }
    static void kdeResumed(void* data, org_kde_kwin_idle_timeout*) {
        static_cast<Session*>(data)->silent(false);
    }
    static constexpr org_kde_kwin_idle_timeout_listener kdeIdleListener = {&kdeIdled, &kdeResumed};

    // Asks for the silence notice on the seat, with the standard protocol when offered.
    void watchSilence() {
        if (!seat)
            return;
        if (idleNotifier) {
            idleNotification = ext_idle_notifier_v1_get_idle_notification(idleNotifier, kSilenceStepMs, seat);
            ext_idle_notification_v1_add_listener(idleNotification, &idleListener, this);
        } else if (kdeIdle) {
            kdeIdleTimeout = org_kde_kwin_idle_get_idle_timeout(kdeIdle, seat, kSilenceStepMs);
            org_kde_kwin_idle_timeout_add_listener(kdeIdleTimeout, &kdeIdleListener, this);
        }
    }
};

WaylandOffer probeWayland(const std::string& display) {
    WaylandOffer offer;
    wl_display* connection = wl_display_connect(displayName(display));
    if (!connection)
        return offer;
    static constexpr wl_registry_listener listener = {
        [](void* data, wl_registry*, std::uint32_t, const char* interface, std::uint32_t) {
            auto& found = *static_cast<WaylandOffer*>(data);
            if (std::strcmp(interface, zwlr_foreign_toplevel_manager_v1_interface.name) == 0)
                found.foreignToplevels = true;
            if (std::strcmp(interface, ext_idle_notifier_v1_interface.name) == 0 ||
                std::strcmp(interface, org_kde_kwin_idle_interface.name) == 0)
                found.idleNotify = true;
        },
        [](void*, wl_registry*, std::uint32_t) {}};
    wl_registry* registry = wl_display_get_registry(connection);
    wl_registry_add_listener(registry, &listener, &offer);
    offer.connected = wl_display_roundtrip(connection) >= 0;
    wl_registry_destroy(registry);
    wl_display_disconnect(connection);
    return offer;
}

WaylandSource::WaylandSource(std::string display, std::shared_ptr<ReportedWorkspace> workspace, Reads reads)
    : display_(std::move(display)), workspace_(std::move(workspace)), reads_(reads) {
    if (pipe2(wakePipe_, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    thread_ = std::thread([this] { run(); });
}

WaylandSource::~WaylandSource() {
    if (thread_.joinable()) {
        const char stop = 1;
        while (write(wakePipe_[1], &stop, 1) < 0 && errno == EINTR) {
        }
        thread_.join();
    }
    for (int fd : wakePipe_) {
        if (fd >= 0)
            close(fd);
    }
}

bool WaylandSource::pause(int ms) {
    pollfd wake{wakePipe_[0], POLLIN, 0};
    int ready;
    do {
        ready = poll(&wake, 1, ms);
    } while (ready < 0 && errno == EINTR);
    return ready == 0;
}

void WaylandSource::run() {
    int retry = kFirstRetryMs;
    for (;;) {
        if (wl_display* connection = wl_display_connect(displayName(display_))) {
            bool stopping;
            {
                Session session(*workspace_, reads_ == Reads::windowsAndSilence, connection);
                stopping = serve(session);
                if (session.established)
                    retry = kFirstRetryMs;
            }
            wl_display_disconnect(connection);
            if (reads_ == Reads::windowsAndSilence)
                workspace_->sourceConnected(false);
            else
                workspace_->inputSilentSince(std::nullopt);
            if (stopping)
                return;
        }
        if (!pause(retry))
            return;
        retry = std::min(retry * 2, kLongestRetryMs);
    }
}

bool WaylandSource::serve(Session& session) {
    wl_display* display = session.display;
    session.registry = wl_display_get_registry(display);
    wl_registry_add_listener(session.registry, &Session::registryListener, &session);
    if (wl_display_roundtrip(display) < 0 || (session.readWindows && !session.manager))
        return false;
    session.watchSilence();
    // The second round trip brings every open toplevel with its first `done`.
    if (wl_display_roundtrip(display) < 0)
        return false;
    session.established = true;
    if (session.readWindows)
        workspace_->sourceConnected(true);

    const int fd = wl_display_get_fd(display);
    for (;;) {
        if (session.readWindows && !session.manager)
            return false;
        while (wl_display_prepare_read(display) != 0) {
            if (wl_display_dispatch_pending(display) < 0)
                return false;
        }
        if (wl_display_flush(display) < 0 && errno != EAGAIN) {
            wl_display_cancel_read(display);
            return false;
        }
        pollfd fds[2] = {{fd, POLLIN, 0}, {wakePipe_[0], POLLIN, 0}};
        if (poll(fds, 2, -1) < 0) {
            wl_display_cancel_read(display);
            if (errno == EINTR)
                continue;
            return false;
        }
        if (fds[1].revents & POLLIN) {
            wl_display_cancel_read(display);
            return true;
        }
        if (wl_display_read_events(display) < 0 || wl_display_dispatch_pending(display) < 0)
            return false;
    }
}

}  // namespace larkspan
