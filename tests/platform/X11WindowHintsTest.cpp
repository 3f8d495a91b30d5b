// The floating prompts' hints against a real X server: the every-desktop mark lands on the window,
// and a compositing manager is seen exactly while one owns its selection.
#include "Platform/Linux/X11WindowHints.h"

#include <gtest/gtest.h>

#include "TestWindows.h"
#include "XvfbDisplay.h"

namespace larkspan {
namespace {

TEST(X11WindowHints, MarkEveryDesktopAndSeeACompositingManagerOnlyWhileItOwnsItsSelection) {
    // No window manager: what is read back is what the hint wrote, not a manager's answer.
    test::XvfbDisplay display({.windowManager = false});
    ASSERT_TRUE(display.ready()) << display.error();
    test::TestWindows windows(display.name());
    xcb_connection_t* connection = windows.connection();
    ASSERT_TRUE(windows.connected());

    const xcb_window_t window = windows.create({});
    showOnAllDesktops(connection, window);
    EXPECT_EQ(display.run({"xprop", "-id", std::to_string(window), "_NET_WM_DESKTOP"}),
              "_NET_WM_DESKTOP(CARDINAL) = 4294967295\n");

    setenv("DISPLAY", display.name().c_str(), 1);
    EXPECT_FALSE(compositingManagerRunning(connection));
    const xcb_window_t manager = windows.create({});
    xcb_set_selection_owner(connection, manager, windows.atom("_NET_WM_CM_S0"), XCB_CURRENT_TIME);
    EXPECT_TRUE(compositingManagerRunning(connection));
    xcb_destroy_window(connection, manager);
    EXPECT_FALSE(compositingManagerRunning(connection));
}

TEST(X11WindowHints, ABrokenConnectionIsLeftAlone) {
    xcb_connection_t* broken = xcb_connect("/nonexistent/socket:0", nullptr);
    ASSERT_TRUE(xcb_connection_has_error(broken));
    showOnAllDesktops(broken, 1);
    EXPECT_FALSE(compositingManagerRunning(broken));
    EXPECT_FALSE(compositingManagerRunning(nullptr));
    xcb_disconnect(broken);
}

}  // namespace
}  // namespace larkspan
