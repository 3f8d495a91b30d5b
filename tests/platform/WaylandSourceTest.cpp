#include "Platform/Linux/Wayland/WaylandSource.h"

#include <gtest/gtest.h>

#include "FakeCompositor.h"
#include "ManualMainQueue.h"
#include "XvfbDisplay.h"

namespace larkspan {
namespace {

std::shared_ptr<ReportedWorkspace> makeWorkspace() {
    return std::make_shared<ReportedWorkspace>(
        std::make_shared<AppIdentity>(std::make_shared<DesktopEntries>(std::vector<std::filesystem::path>{},
                                                                       std::vector<std::string>{})),
        std::make_shared<test::ManualMainQueue>(), nullptr, DesktopNotice{}, DesktopNotice{});
}

TEST(WaylandSource, ProbeSeesWhatTheCompositorOffers) {
    for (const bool toplevels : {false, true}) {
        for (const bool idleNotify : {false, true}) {
            test::FakeCompositor compositor({.toplevels = toplevels, .idleNotify = idleNotify});
            const auto offer = probeWayland(compositor.display());
            EXPECT_TRUE(offer.connected);
            EXPECT_EQ(offer.foreignToplevels, toplevels);
            EXPECT_EQ(offer.idleNotify, idleNotify);
        }
    }
}

// The activated window in front, then ext-idle-notify-v1's idled and resumed as input silence.
TEST(WaylandSource, FollowsTheActivatedWindowAndTheIdleNotification) {
    auto workspace = makeWorkspace();
    auto compositor = std::make_unique<test::FakeCompositor>();
    WaylandSource source(compositor->display(), workspace);
    ASSERT_TRUE(
        test::waitUntil([&] { return compositor->idleTimeoutMs() == WaylandSource::kSilenceStepMs; }));

    compositor->showWindow(1, "foot", "~/src: make", true);
    compositor->showWindow(2, "org.gnome.Nautilus", "Downloads", false);
    ASSERT_TRUE(test::waitUntil([&] { return workspace->focusedWindowTitle(0) == "~/src: make"; }));
    compositor->showWindow(2, "org.gnome.Nautilus", "Downloads \xF0\x9F\x93\x81", true);
    ASSERT_TRUE(
        test::waitUntil([&] { return workspace->focusedWindowTitle(0) == "Downloads \xF0\x9F\x93\x81"; }));

    compositor->setIdle(true);
    ASSERT_TRUE(test::waitUntil([&] { return workspace->secondsSinceLastInput() >= 5; }));
    compositor->setIdle(false);
    ASSERT_TRUE(test::waitUntil([&] { return workspace->secondsSinceLastInput() == 0; }));

    // The compositor goes away: nothing is readable until one is back.
    compositor.reset();
    EXPECT_TRUE(test::waitUntil([&] { return !workspace->canReadWindows(); }));
}

}  // namespace
}  // namespace larkspan
