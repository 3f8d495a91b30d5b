#include "App/PopoverPlacement.h"

#include <algorithm>
#include <cstdint>

namespace larkspan {

namespace {

// `start` moved so that [start, start + length) lies inside [low, low + span) where it can; a length
// that does not fit starts at `low`. Wide arithmetic, so absurd geometry cannot overflow.
int clampInto(std::int64_t start, std::int64_t length, std::int64_t low, std::int64_t span) {
    const std::int64_t high = low + span - length;
    return static_cast<int>(high < low ? low : std::clamp(start, low, high));
}

int saturated(std::int64_t value) {
    return static_cast<int>(std::clamp<std::int64_t>(value, INT32_MIN, INT32_MAX));
}

}  // namespace

ScreenRect placePopover(const std::optional<ScreenRect>& trayIcon, ScreenPoint pointer,
                        const ScreenRect& available, int width, int height) {
    const bool useIcon = trayIcon && !trayIcon->isEmpty();
    const ScreenRect anchor = useIcon ? *trayIcon : ScreenRect{pointer.x, pointer.y, 0, 0};
    const std::int64_t centreX = std::int64_t{anchor.x} + anchor.width / 2;
    const std::int64_t centreY = std::int64_t{anchor.y} + anchor.height / 2;
    const std::int64_t middle = std::int64_t{available.y} + available.height / 2;
    const bool below = available.isEmpty() || centreY < middle;

    const std::int64_t x = centreX - width / 2;
    const std::int64_t y = below ? std::int64_t{anchor.y} + anchor.height + kPopoverGap
                                 : std::int64_t{anchor.y} - kPopoverGap - height;
    if (available.isEmpty()) {
        return {saturated(x), saturated(y), width, height};
    }
    return {clampInto(x, width, available.x, available.width),
            clampInto(y, height, available.y, available.height), width, height};
}

ScreenRect centrePopover(const ScreenRect& available, int width, int height) {
    const std::int64_t x = std::int64_t{available.x} + (std::int64_t{available.width} - width) / 2;
    const std::int64_t y = std::int64_t{available.y} + (std::int64_t{available.height} - height) / 2;
    return {clampInto(x, width, available.x, available.width),
            clampInto(y, height, available.y, available.height), width, height};
}

}  // namespace larkspan
