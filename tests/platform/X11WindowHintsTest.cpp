// The floating prompts' hints against a real X server: the every-desktop mark lands on the window,
// and a compositing manager is seen exactly while one owns its selection.
#include "Platform/Linux/X11WindowHints.h"

#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string>

#include "XvfbDisplay.h"

namespace larkspan {
namespace {

class X11WindowHintsTest : public ::testing::Test {
protected:
    void SetUp() override {
        if (!test::XvfbDisplay::xvfbInstalled())
            GTEST_SKIP() << "Xvfb is not installed; scripts/install-deps installs it.";
        // No window manager: what is read back is what the hint wrote, not a manager's answer.
        display = std::make_unique<test::XvfbDisplay>(test::XvfbDisplay::Options{true, false});
        ASSERT_TRUE(display->ready()) << display->error();
        connection = xcb_connect(display->name().c_str(), nullptr);
        ASSERT_FALSE(xcb_connection_has_error(connection));
        root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    }

    void TearDown() override {
        if (connection)
            xcb_disconnect(connection);
    }

    xcb_atom_t atom(const std::string& name) {
        auto* reply = xcb_intern_atom_reply(
            connection, xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str()),
            nullptr);
        const xcb_atom_t value = reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
        std::free(reply);
        return value;
    }

    xcb_window_t newWindow() {
        const xcb_window_t window = xcb_generate_id(connection);
        xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, root, 0, 0, 10, 10, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        return window;
    }

    std::unique_ptr<test::XvfbDisplay> display;
    xcb_connection_t* connection = nullptr;
    xcb_window_t root = XCB_WINDOW_NONE;
};

TEST_F(X11WindowHintsTest, MarksAWindowForEveryDesktop) {
    const xcb_window_t window = newWindow();
    showOnAllDesktops(connection, window);
    auto* reply = xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, window, atom("_NET_WM_DESKTOP"), XCB_ATOM_CARDINAL, 0, 1),
        nullptr);
    ASSERT_NE(reply, nullptr);
    ASSERT_EQ(xcb_get_property_value_length(reply), 4);
    EXPECT_EQ(*static_cast<const std::uint32_t*>(xcb_get_property_value(reply)), 0xFFFFFFFFu);
    std::free(reply);
}

TEST_F(X11WindowHintsTest, SeesACompositingManagerOnlyWhileItOwnsItsSelection) {
    setenv("DISPLAY", display->name().c_str(), 1);
    EXPECT_FALSE(compositingManagerRunning(connection));

    const xcb_window_t manager = newWindow();
    xcb_set_selection_owner(connection, manager, atom("_NET_WM_CM_S0"), XCB_CURRENT_TIME);
    EXPECT_TRUE(compositingManagerRunning(connection));

    xcb_destroy_window(connection, manager);
    EXPECT_FALSE(compositingManagerRunning(connection));
}

TEST_F(X11WindowHintsTest, ABrokenConnectionIsLeftAlone) {
    xcb_connection_t* broken = xcb_connect("/nonexistent/socket:0", nullptr);
    ASSERT_TRUE(xcb_connection_has_error(broken));
    showOnAllDesktops(broken, 1);
    EXPECT_FALSE(compositingManagerRunning(broken));
    EXPECT_FALSE(compositingManagerRunning(nullptr));
    xcb_disconnect(broken);
}

}  // namespace
}  // namespace larkspan
