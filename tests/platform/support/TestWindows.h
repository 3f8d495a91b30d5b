// Top-level windows made by the test process itself over a plain xcb connection, with chosen
// WM_CLASS, title and hints, so that one process can own several windows (xterm cannot) and dialogs
// can name a main window.
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
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

    explicit TestWindows(const std::string& display);
    ~TestWindows();
    TestWindows(const TestWindows&) = delete;
    TestWindows& operator=(const TestWindows&) = delete;

    bool connected() const { return screen_ != nullptr; }
    xcb_connection_t* connection() const { return connection_; }
    xcb_atom_t atom(const std::string& name);

    // Creates and maps a window with this process's pid in _NET_WM_PID. Returns its id, 0 on failure.
    std::uint32_t create(const Properties& properties);
    // Asks again for the window to be shown; a window manager still starting may drop the first request.
    void map(std::uint32_t window);

private:
    void set(xcb_window_t window, xcb_atom_t property, xcb_atom_t type, std::uint8_t format,
             std::uint32_t count, const void* data);

    xcb_connection_t* connection_;
    xcb_screen_t* screen_ = nullptr;
};

}  // namespace larkspan::test
