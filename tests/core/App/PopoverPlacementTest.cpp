#include "App/PopoverPlacement.h"

#include <gtest/gtest.h>

namespace larkspan {
namespace {

// A 1920 × 1080 screen whose top panel takes 30 pixels.
const ScreenRect kTopPanelScreen{0, 30, 1920, 1050};
// The same screen with the panel at the bottom.
const ScreenRect kBottomPanelScreen{0, 0, 1920, 1050};

TEST(PopoverPlacement, AgainstTheTrayIconElseThePointerInsideTheAvailableArea) {
    const std::optional<ScreenRect> noIcon;
    const ScreenRect none{};
    struct Case {
        const char* what;
        std::optional<ScreenRect> icon;
        ScreenPoint pointer;
        ScreenRect screen;
        int x, y;  // the popover is always 320 × 420
    };
    // clang-format off
    const Case cases[] = {
        {"centred below an icon in a top panel", ScreenRect{1000, 4, 22, 22}, {5, 5}, kTopPanelScreen, 851, 30},
        {"above an icon in a bottom panel", ScreenRect{1000, 1054, 22, 22}, {5, 5}, kBottomPanelScreen, 851, 1050 - 420},
        {"above an icon over the panel", ScreenRect{1000, 1000, 22, 22}, {5, 5}, kBottomPanelScreen, 851, 1000 - kPopoverGap - 420},
        {"no icon: below the pointer", noIcon, {700, 300}, kTopPanelScreen, 540, 300 + kPopoverGap},
        {"no icon: above a low pointer", noIcon, {700, 900}, kTopPanelScreen, 540, 900 - kPopoverGap - 420},
        {"icon without width: the pointer", ScreenRect{1000, 4, 0, 22}, {700, 900}, kTopPanelScreen, 540, 900 - kPopoverGap - 420},
        {"icon at the right end: right edges meet", ScreenRect{1900, 4, 22, 22}, {}, kTopPanelScreen, 1600, 30},
        {"pointer at the left edge on the middle line: above", noIcon, {0, 555}, kTopPanelScreen, 0, 131},
        {"a screen left of the first", noIcon, {-1270, 10}, ScreenRect{-1280, 0, 1280, 1024}, -1280, 14},
        {"a screen smaller than the popover: its top-left", noIcon, {100, 100}, ScreenRect{0, 0, 300, 400}, 0, 0},
        {"no screen known: at the anchor, unclamped", noIcon, {10, 10}, none, -150, 14},
    };
    // clang-format on
    for (const Case& c : cases)
        EXPECT_EQ(placePopover(c.icon, c.pointer, c.screen, 320, 420), (ScreenRect{c.x, c.y, 320, 420}))
            << c.what;
    // Absurd coordinates saturate.
    EXPECT_EQ(placePopover(ScreenRect{INT32_MAX - 5, INT32_MAX - 5, 4, 4}, {}, none, 320, 420).y, INT32_MAX);
}

}  // namespace
}  // namespace larkspan
