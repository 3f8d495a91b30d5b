// Test windows over a plain xcb connection.
#include "TestWindows.h"

#include <unistd.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <cstring>

namespace larkspan::test {

struct TestWindows::Connection {
    xcb_connection_t* c = nullptr;
    xcb_screen_t* screen = nullptr;

    xcb_atom_t atom(const char* name) {
        auto* reply = xcb_intern_atom_reply(
            c, xcb_intern_atom(c, 0, static_cast<std::uint16_t>(std::strlen(name)), name), nullptr);
        const xcb_atom_t result = reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
        std::free(reply);
        return result;
    }
    void set(xcb_window_t w, xcb_atom_t property, xcb_atom_t type, std::uint8_t format, std::uint32_t count,
             const void* data) {
        xcb_change_property(c, XCB_PROP_MODE_REPLACE, w, property, type, format, count, data);
    }
};

TestWindows::TestWindows(const std::string& display) : connection_(std::make_unique<Connection>()) {
    int screen = 0;
    connection_->c = xcb_connect(display.c_str(), &screen);
    if (xcb_connection_has_error(connection_->c))
        return;
    connection_->screen = xcb_setup_roots_iterator(xcb_get_setup(connection_->c)).data;
}

TestWindows::~TestWindows() {
    if (connection_->c)
        xcb_disconnect(connection_->c);
}

bool TestWindows::connected() const {
    return connection_->screen != nullptr;
}

std::uint32_t TestWindows::create(const Properties& properties) {
    if (!connected())
        return 0;
    auto& k = *connection_;
    const xcb_window_t w = xcb_generate_id(k.c);
    const std::uint32_t values[] = {k.screen->white_pixel};
    xcb_create_window(k.c, XCB_COPY_FROM_PARENT, w, k.screen->root, 0, 0, 320, 200, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, k.screen->root_visual, XCB_CW_BACK_PIXEL, values);
    const std::string wmClass = properties.instance + '\0' + properties.wmClass + '\0';
    k.set(w, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(wmClass.size()),
          wmClass.data());
    k.set(w, k.atom("_NET_WM_NAME"), k.atom("UTF8_STRING"), 8,
          static_cast<std::uint32_t>(properties.title.size()), properties.title.data());
    const std::uint32_t pid = static_cast<std::uint32_t>(getpid());
    k.set(w, k.atom("_NET_WM_PID"), XCB_ATOM_CARDINAL, 32, 1, &pid);
    if (!properties.gtkApplicationID.empty()) {
        k.set(w, k.atom("_GTK_APPLICATION_ID"), k.atom("UTF8_STRING"), 8,
              static_cast<std::uint32_t>(properties.gtkApplicationID.size()),
              properties.gtkApplicationID.data());
    }
    if (properties.utility) {
        const xcb_atom_t utility = k.atom("_NET_WM_WINDOW_TYPE_UTILITY");
        k.set(w, k.atom("_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32, 1, &utility);
    }
    if (properties.transientFor)
        k.set(w, XCB_ATOM_WM_TRANSIENT_FOR, XCB_ATOM_WINDOW, 32, 1, &properties.transientFor);
    xcb_map_window(k.c, w);
    xcb_flush(k.c);
    return w;
}

}  // namespace larkspan::test

namespace larkspan::test {

void TestWindows::map(std::uint32_t window) {
    if (!connected())
        return;
    xcb_map_window(connection_->c, window);
    xcb_flush(connection_->c);
}

}  // namespace larkspan::test
