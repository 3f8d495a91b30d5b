#include "FakeCompositor.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <wayland-server.h>

#include <atomic>
#include <cstring>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

#include "TempDir.h"
#include "ext-idle-notify-v1-server-protocol.h"
#include "wlr-foreign-toplevel-management-unstable-v1-server-protocol.h"

namespace larkspan::test {

namespace {

// Keeps a resource list in step with the client: a resource leaves it when destroyed.
void track(std::vector<wl_resource*>& list, wl_resource* resource, const void* implementation) {
    list.push_back(resource);
    wl_resource_set_implementation(resource, implementation, &list, [](wl_resource* gone) {
        auto& owner = *static_cast<std::vector<wl_resource*>*>(wl_resource_get_user_data(gone));
        std::erase(owner, gone);
    });
}

void destroyResource(wl_client*, wl_resource* resource) {
    wl_resource_destroy(resource);
}

}  // namespace

struct FakeCompositor::State {
    TempDir folder;
    std::string socketPath = (folder / "wayland-0").string();
    wl_display* display = wl_display_create();
    std::mutex mutex;  // the display is not thread-safe: its thread and the test take turns
    std::atomic<bool> stopping = false;
    std::vector<wl_resource*> managers, idleNotifications;
    std::map<int, wl_resource*> windows;
    int idleTimeoutMs = 0;
    std::thread thread;

    void run(const std::function<void()>& task) {
        std::lock_guard lock(mutex);
        task();
        wl_display_flush_clients(display);
    }
};

FakeCompositor::FakeCompositor(Offer offer) : state_(std::make_unique<State>()) {
    State& s = *state_;
    const int listener = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, s.socketPath.c_str(), sizeof address.sun_path - 1);
    bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address);
    listen(listener, 8);
    wl_display_add_socket_fd(s.display, listener);

    // The source only names the seat, never calls it.
    wl_global_create(s.display, &wl_seat_interface, 1, nullptr,
                     [](wl_client* client, void*, uint32_t, uint32_t id) {
                         wl_resource_create(client, &wl_seat_interface, 1, id);
                     });
    if (offer.toplevels) {
        static const struct zwlr_foreign_toplevel_manager_v1_interface managerImplementation = {.stop =
                                                                                                    nullptr};
        wl_global_create(s.display, &zwlr_foreign_toplevel_manager_v1_interface, 3, &s,
                         [](wl_client* client, void* data, uint32_t version, uint32_t id) {
                             track(static_cast<State*>(data)->managers,
                                   wl_resource_create(client, &zwlr_foreign_toplevel_manager_v1_interface,
                                                      static_cast<int>(version), id),
                                   &managerImplementation);
                         });
    }
    if (offer.idleNotify) {
        static const struct ext_idle_notification_v1_interface notificationImplementation = {
            .destroy = destroyResource};
        static const struct ext_idle_notifier_v1_interface notifierImplementation = {
            .destroy = destroyResource,
            .get_idle_notification = [](wl_client* client, wl_resource* notifier, uint32_t id,
                                        uint32_t timeout, wl_resource*) {
                auto& state = *static_cast<State*>(wl_resource_get_user_data(notifier));
                state.idleTimeoutMs = static_cast<int>(timeout);
                track(state.idleNotifications,
                      wl_resource_create(client, &ext_idle_notification_v1_interface, 1, id),
                      &notificationImplementation);
            }};
        wl_global_create(s.display, &ext_idle_notifier_v1_interface, 1, &s,
                         [](wl_client* client, void* data, uint32_t, uint32_t id) {
                             auto* notifier =
                                 wl_resource_create(client, &ext_idle_notifier_v1_interface, 1, id);
                             wl_resource_set_implementation(notifier, &notifierImplementation, data, nullptr);
                         });
    }

    s.thread = std::thread([&s] {
        auto* loop = wl_display_get_event_loop(s.display);
        pollfd ready{wl_event_loop_get_fd(loop), POLLIN, 0};
        while (!s.stopping) {
            s.run([&] { wl_event_loop_dispatch(loop, 0); });
            poll(&ready, 1, 10);
        }
    });
}

FakeCompositor::~FakeCompositor() {
    state_->stopping = true;
    state_->thread.join();
    wl_display_destroy_clients(state_->display);
    wl_display_destroy(state_->display);
}

const std::string& FakeCompositor::display() const {
    return state_->socketPath;
}

void FakeCompositor::showWindow(int key, const std::string& appID, const std::string& title, bool activated) {
    state_->run([&, this] {
        State& s = *state_;
        static const auto handleImplementation = [] {
            struct zwlr_foreign_toplevel_handle_v1_interface implementation {};
            implementation.destroy = destroyResource;
            return implementation;
        }();
        auto& handle = s.windows[key];
        if (!handle && !s.managers.empty()) {
            auto* manager = s.managers.back();
            handle = wl_resource_create(wl_resource_get_client(manager),
                                        &zwlr_foreign_toplevel_handle_v1_interface,
                                        wl_resource_get_version(manager), 0);
            wl_resource_set_implementation(handle, &handleImplementation, nullptr, nullptr);
            zwlr_foreign_toplevel_manager_v1_send_toplevel(manager, handle);
        }
        if (!handle)
            return;
        wl_array states;
        wl_array_init(&states);
        if (activated)
            *static_cast<uint32_t*>(wl_array_add(&states, sizeof(uint32_t))) =
                ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED;
        zwlr_foreign_toplevel_handle_v1_send_app_id(handle, appID.c_str());
        zwlr_foreign_toplevel_handle_v1_send_title(handle, title.c_str());
        zwlr_foreign_toplevel_handle_v1_send_state(handle, &states);
        zwlr_foreign_toplevel_handle_v1_send_done(handle);
        wl_array_release(&states);
    });
}

void FakeCompositor::setIdle(bool idle) {
    state_->run([idle, this] {
        for (auto* notification : state_->idleNotifications) {
            if (idle)
                ext_idle_notification_v1_send_idled(notification);
            else
                ext_idle_notification_v1_send_resumed(notification);
        }
    });
}

int FakeCompositor::idleTimeoutMs() {
    int timeout = 0;
    state_->run([&, this] { timeout = state_->idleTimeoutMs; });
    return timeout;
}

}  // namespace larkspan::test
