// A private X display for one test: Xvfb on a free display number, openbox on it, and the
// X clients the test starts. Everything started here is stopped, by process id, at destruction.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace larkspan::test {

// Polls `condition` every few milliseconds until it holds or `timeout` passes; returns its last value.
bool waitUntil(const std::function<bool()>& condition,
               std::chrono::milliseconds timeout = std::chrono::milliseconds(5000));

class XvfbDisplay {
public:
    struct Options {
        bool windowManager = true;  // openbox
    };

    explicit XvfbDisplay(Options options);
    XvfbDisplay() : XvfbDisplay(Options{}) {}
    ~XvfbDisplay();
    XvfbDisplay(const XvfbDisplay&) = delete;
    XvfbDisplay& operator=(const XvfbDisplay&) = delete;

    // Whether the server (and window manager) came up; `error()` says why not.
    bool ready() const { return ready_; }
    const std::string& error() const { return error_; }
    const std::string& name() const { return name_; }  // ":91"

    // Starts a client with DISPLAY set and a UTF-8 locale; its output is discarded. 0 on failure.
    pid_t spawn(const std::vector<std::string>& argv);
    // Runs a short command on the display and returns what it printed; killed after `timeout`.
    std::string run(const std::vector<std::string>& argv,
                    std::chrono::milliseconds timeout = std::chrono::milliseconds(5000));
    // Ids of the mapped windows whose WM_CLASS class is `wmClass`, waiting up to `timeout` for one.
    std::vector<std::string> windowsOfClass(
        const std::string& wmClass, std::chrono::milliseconds timeout = std::chrono::milliseconds(5000));
    // Activates a window through the window manager (xdotool windowactivate).
    void activate(const std::string& windowID);

    // Stops the server (clients and window manager die with it) and starts it again on the same
    // display number, for tests of a lost connection.
    void stopServer();
    bool restartServer();

private:
    bool start(const std::string& display);

    Options options_;
    std::string name_;
    std::vector<pid_t> processes_;  // the server first, then the window manager and the clients
    bool ready_ = false;
    std::string error_;
};

}  // namespace larkspan::test
