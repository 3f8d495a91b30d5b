// A Wayland compositor in miniature on a thread of its own, for the Wayland source's tests and the
// capture benchmark: it offers a seat and, as asked, wlr foreign-toplevel and ext-idle-notify-v1,
// shows the windows and silence the test scripts, on a socket in a temporary folder.
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace larkspan::test {

class FakeCompositor {
public:
    struct Offer {
        bool toplevels = true;
        bool idleNotify = true;
    };

    explicit FakeCompositor(Offer offer);
    FakeCompositor() : FakeCompositor(Offer{}) {}
    ~FakeCompositor();
    FakeCompositor(const FakeCompositor&) = delete;
    FakeCompositor& operator=(const FakeCompositor&) = delete;

    // The socket's absolute path, which wl_display_connect takes as a display name.
    const std::string& display() const;

    // Each runs on the compositor's thread and returns once it has.
    // Tells every client of window `key`'s (new) state, ending with `done`.
    void showWindow(int key, const std::string& appID, const std::string& title, bool activated);
    // Sends `idled` (true) or `resumed` to every idle notification.
    void setIdle(bool idle);
    // The timeout of the last idle notification asked for; 0 when none was.
    int idleTimeoutMs();

private:
    struct State;
    std::unique_ptr<State> state_;
};

}  // namespace larkspan::test
