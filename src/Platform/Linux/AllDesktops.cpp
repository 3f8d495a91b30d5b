#include "Platform/Linux/AllDesktops.h"

#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>
#include <memory>

namespace larkspan {

void showOnAllDesktops(xcb_connection_t* connection, std::uint32_t window) {
    if (!connection || xcb_connection_has_error(connection))
        return;
    static constexpr const char* name = "_NET_WM_DESKTOP";
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    if (!reply)
        return;
    static constexpr std::uint32_t everyDesktop = 0xFFFFFFFF;
    // The window manager reads the property when it first maps the window.
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, reply->atom, XCB_ATOM_CARDINAL, 32, 1,
                        &everyDesktop);
    xcb_flush(connection);
}

}  // namespace larkspan
