#include "App/PopoverPlacement.h"

#include <gtest/gtest.h>

namespace larkspan {
namespace {

// A 1920 × 1080 screen whose top panel takes 30 pixels.
const ScreenRect kTopPanelScreen{0, 30, 1920, 1050};
// The same screen with the panel at the bottom.
const ScreenRect kBottomPanelScreen{0, 0, 1920, 1050};

TEST(PopoverPlacement, OpensAgainstTheTrayIconOnThePanelsSide) {
    // Centred below an icon in a top panel.
    EXPECT_EQ(placePopover(ScreenRect{1000, 4, 22, 22}, {5, 5}, kTopPanelScreen, 320, 420),
              (ScreenRect{851, 30, 320, 420}));
    EXPECT_EQ(placePopover(ScreenRect{1000, 34, 22, 22}, {5, 5}, kTopPanelScreen, 320, 420),
              (ScreenRect{851, 60, 320, 420}));
    // Above an icon in a bottom panel.
    EXPECT_EQ(placePopover(ScreenRect{1000, 1054, 22, 22}, {5, 5}, kBottomPanelScreen, 320, 420),
              (ScreenRect{851, 1050 - 420, 320, 420}));
    EXPECT_EQ(placePopover(ScreenRect{1000, 1000, 22, 22}, {5, 5}, kBottomPanelScreen, 320, 420),
              (ScreenRect{851, 1000 - kPopoverGap - 420, 320, 420}));
}

TEST(PopoverPlacement, FallsBackToThePointerWithoutTrayGeometry) {
    for (const std::optional<ScreenRect>& none :
         {std::optional<ScreenRect>{}, std::optional<ScreenRect>{ScreenRect{}},
          std::optional<ScreenRect>{ScreenRect{1000, 4, 0, 22}}}) {
        EXPECT_EQ(placePopover(none, {700, 300}, kTopPanelScreen, 320, 420),
                  (ScreenRect{540, 300 + kPopoverGap, 320, 420}));
        EXPECT_EQ(placePopover(none, {700, 900}, kTopPanelScreen, 320, 420),
                  (ScreenRect{540, 900 - kPopoverGap - 420, 320, 420}));
    }
}

TEST(PopoverPlacement, StaysInsideTheAvailableArea) {
    // An icon at the right end of the panel: the right edge meets the screen's.
    EXPECT_EQ(placePopover(ScreenRect{1900, 4, 22, 22}, {}, kTopPanelScreen, 320, 420),
              (ScreenRect{1600, 30, 320, 420}));
    // The pointer at the left edge, on the middle line: above it.
    EXPECT_EQ(placePopover(std::nullopt, {0, 555}, kTopPanelScreen, 320, 420),
              (ScreenRect{0, 131, 320, 420}));
    // A second screen to the left of the first, with negative coordinates.
    EXPECT_EQ(placePopover(std::nullopt, {-1270, 10}, ScreenRect{-1280, 0, 1280, 1024}, 320, 420),
              (ScreenRect{-1280, 14, 320, 420}));
    // A screen smaller than the popover: aligned to its top-left corner, size kept.
    EXPECT_EQ(placePopover(std::nullopt, {100, 100}, ScreenRect{0, 0, 300, 400}, 320, 420),
              (ScreenRect{0, 0, 320, 420}));
    // No screen known: placed at the anchor unclamped; absurd coordinates saturate.
    EXPECT_EQ(placePopover(std::nullopt, {10, 10}, ScreenRect{}, 320, 420), (ScreenRect{-150, 14, 320, 420}));
    EXPECT_EQ(placePopover(ScreenRect{INT32_MAX - 5, INT32_MAX - 5, 4, 4}, {}, ScreenRect{}, 320, 420).y,
              INT32_MAX);
}

}  // namespace
}  // namespace larkspan
