#include "Platform/Linux/X11WindowHints.h"

#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace larkspan {

namespace {

xcb_atom_t internAtom(xcb_connection_t* connection, const std::string& name) {
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

bool usable(xcb_connection_t* connection) {
    return connection && !xcb_connection_has_error(connection);
}

}  // namespace

void showOnAllDesktops(xcb_connection_t* connection, std::uint32_t window) {
    if (!usable(connection))
        return;
    const xcb_atom_t desktop = internAtom(connection, "_NET_WM_DESKTOP");
    if (desktop == XCB_ATOM_NONE)
        return;
    static constexpr std::uint32_t everyDesktop = 0xFFFFFFFF;
    // The window manager reads the property when it first maps the window.
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, desktop, XCB_ATOM_CARDINAL, 32, 1,
                        &everyDesktop);
    xcb_flush(connection);
}

bool compositingManagerRunning(xcb_connection_t* connection) {
    if (!usable(connection))
        return false;
    // The screen number DISPLAY names (":0.1" is screen 1), as the connection was made from it.
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen))
        std::free(host);
    else
        screen = 0;
    const xcb_atom_t selection = internAtom(connection, "_NET_WM_CM_S" + std::to_string(screen));
    if (selection == XCB_ATOM_NONE)
        return false;
    const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(&std::free)> owner(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selection), nullptr),
        &std::free);
    return owner && owner->owner != XCB_WINDOW_NONE;
}

}  // namespace larkspan
