// Top-level windows made by the test process itself, with chosen WM_CLASS, title and hints, so
// that one process can own several windows (xterm cannot) and dialogs can name a main window.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace larkspan::test {

class TestWindows {
public:
    struct Properties {
        std::string instance{};
        std::string wmClass{};
        std::string title{};
        std::string gtkApplicationID{};  // _GTK_APPLICATION_ID when not empty
        std::uint32_t transientFor = 0;  // WM_TRANSIENT_FOR when not 0
        bool utility = false;            // _NET_WM_WINDOW_TYPE_UTILITY, as Qt gives a tool window
    };

    // Connects to `display`; `connected()` tells whether that worked.
    explicit TestWindows(const std::string& display);
    ~TestWindows();
    bool connected() const;

    // Creates and maps a window with this process's pid in _NET_WM_PID. Returns its id, 0 on failure.
    std::uint32_t create(const Properties& properties);
    // Asks again for the window to be shown; a window manager still starting may drop the first request.
    void map(std::uint32_t window);

private:
    struct Connection;
    std::unique_ptr<Connection> connection_;
};

}  // namespace larkspan::test
