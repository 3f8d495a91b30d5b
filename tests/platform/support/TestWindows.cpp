#include "TestWindows.h"

#include <unistd.h>

#include <cstdlib>

namespace larkspan::test {

TestWindows::TestWindows(const std::string& display) : connection_(xcb_connect(display.c_str(), nullptr)) {
    if (!xcb_connection_has_error(connection_))
        screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
}

TestWindows::~TestWindows() {
    xcb_disconnect(connection_);
}

xcb_atom_t TestWindows::atom(const std::string& name) {
    auto* reply = xcb_intern_atom_reply(
        connection_, xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.c_str()),
        nullptr);
    const xcb_atom_t result = reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    std::free(reply);
    return result;
}

void TestWindows::set(xcb_window_t window, xcb_atom_t property, xcb_atom_t type, std::uint8_t format,
                      std::uint32_t count, const void* data) {
    xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window, property, type, format, count, data);
}

std::uint32_t TestWindows::create(const Properties& properties) {
    if (!connected())
        return 0;
    const xcb_window_t w = xcb_generate_id(connection_);
    const std::uint32_t values[] = {screen_->white_pixel};
    xcb_create_window(connection_, XCB_COPY_FROM_PARENT, w, screen_->root, 0, 0, 320, 200, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen_->root_visual, XCB_CW_BACK_PIXEL, values);
    const auto text = [&](xcb_atom_t property, xcb_atom_t type, const std::string& value) {
        set(w, property, type, 8, static_cast<std::uint32_t>(value.size()), value.data());
    };
    text(XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, properties.instance + '\0' + properties.wmClass + '\0');
    text(atom("_NET_WM_NAME"), atom("UTF8_STRING"), properties.title);
    const auto pid = static_cast<std::uint32_t>(getpid());
    set(w, atom("_NET_WM_PID"), XCB_ATOM_CARDINAL, 32, 1, &pid);
    if (!properties.gtkApplicationID.empty())
        text(atom("_GTK_APPLICATION_ID"), atom("UTF8_STRING"), properties.gtkApplicationID);
    if (properties.utility) {
        const xcb_atom_t utility = atom("_NET_WM_WINDOW_TYPE_UTILITY");
        set(w, atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32, 1, &utility);
    }
    if (properties.transientFor)
        set(w, XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, 32, 1, &properties.transientFor);
    map(w);
    return w;
}

void TestWindows::map(std::uint32_t window) {
    xcb_map_window(connection_, window);
    xcb_flush(connection_);
}

}  // namespace larkspan::test
