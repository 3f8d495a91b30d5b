#include <gtest/gtest.h>

#include "App/PopoverPlacement.h"

namespace larkspan {
namespace {

TEST(PopoverCentring, CentresInTheAvailableAreaOrAlignsWhatDoesNotFit) {
    struct Case {
        ScreenRect available;
        ScreenRect expected;
    };
    const Case cases[] = {
        {{0, 30, 1920, 1050}, {800, 345, 320, 420}},     // below a top panel
        {{1920, 0, 1280, 1024}, {2400, 302, 320, 420}},  // a second screen to the right
        {{0, 0, 300, 400}, {0, 0, 320, 420}},            // too small: the top-left corner
        {{}, {0, 0, 320, 420}},                          // no screen at all
    };
    for (const auto& c : cases)
        EXPECT_EQ(centrePopover(c.available, 320, 420), c.expected) << c.available.x << "," << c.available.y;
}

}  // namespace
}  // namespace larkspan
