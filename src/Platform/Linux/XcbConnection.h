// One connection to the X server with the EWMH reads the workspace needs. xcb is thread-safe, so
// one connection serves any number of threads; requests for several properties are sent together
// and their replies collected afterwards, which keeps a capture to a few round trips.
#pragma once

#include <xcb/xcb.h>

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Platform/Linux/AppIdentity.h"

namespace larkspan {

class XcbConnection {
public:
    // Connects to `display` (":0"); nothing when the server cannot be reached.
    static std::unique_ptr<XcbConnection> open(const std::string& display);
    ~XcbConnection();
    XcbConnection(const XcbConnection&) = delete;
    XcbConnection& operator=(const XcbConnection&) = delete;

    // True once the server went away or the stream broke; the connection is then useless.
    bool broken() const;
    int fileDescriptor() const;
    xcb_connection_t* raw() const { return connection_; }
    xcb_window_t root() const { return root_; }

    // Asks for PropertyNotify on the root window, where the window manager publishes
    // _NET_ACTIVE_WINDOW. Returns whether the request went out.
    bool watchRoot();
    // Whether `event` reports a change of _NET_ACTIVE_WINDOW.
    bool isActiveWindowChange(const xcb_generic_event_t& event) const;

    // _NET_ACTIVE_WINDOW; XCB_WINDOW_NONE when nothing is focused or it cannot be read.
    xcb_window_t activeWindow();
    // Whether `window` is a utility window (_NET_WM_WINDOW_TYPE_UTILITY) of process `pid`.
    bool isUtilityWindowOf(xcb_window_t window, std::int64_t pid);
    // Managed windows, topmost first (_NET_CLIENT_LIST_STACKING, else _NET_CLIENT_LIST).
    std::vector<xcb_window_t> clientsTopFirst();

    // The title: _NET_WM_NAME, else WM_NAME, as UTF-8; empty when the window has neither; nothing
    // when the window cannot be read (gone, connection lost). `pid` receives _NET_WM_PID (0 if absent).
    std::optional<std::string> title(xcb_window_t window, std::int64_t* pid = nullptr);

    // The identity clues of each window, taken from the main window of a dialog (WM_TRANSIENT_FOR).
    // A window that cannot be read gives empty clues.
    std::vector<WindowClues> identityClues(const std::vector<xcb_window_t>& windows);

private:
    enum Atom {
        kActiveWindow,
        kClientList,
        kClientListStacking,
        kWmPid,
        kWmName,
        kUtf8String,
        kCompoundText,
        kGtkApplicationID,
        kKdeDesktopFile,
        kWmWindowType,
        kWmWindowTypeUtility,
        kAtomCount
    };

    XcbConnection(xcb_connection_t* connection, xcb_window_t root);
    bool internAtoms();
    std::vector<xcb_window_t> windowList(xcb_atom_t property);
    std::vector<WindowClues> ownClues(const std::vector<xcb_window_t>& windows,
                                      std::vector<xcb_window_t>& transientFor);

    xcb_connection_t* connection_;
    xcb_window_t root_;
    std::array<xcb_atom_t, kAtomCount> atoms_{};
};

}  // namespace larkspan
