// Where the popover opens: against the tray icon when the tray tells where it is, else at the mouse
// pointer, and always inside the screen's available area (the desktop minus its panels). Panels sit
// on any edge, so the popover opens below an anchor in the upper half of the area and above one in
// the lower half, centred on the anchor across.
//
//   panel at the top:    [ icon ]            panel at the bottom:   +---------+
//                      +---------+                                  | popover |
//                      | popover |                                  +---------+
//                      +---------+                                   [ icon ]
#pragma once

#include <optional>

namespace larkspan {

// Logical pixels; x grows rightwards, y downwards. Empty when width or height is not positive.
struct ScreenRect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool isEmpty() const { return width <= 0 || height <= 0; }
    bool operator==(const ScreenRect&) const = default;
};

struct ScreenPoint {
    int x = 0;
    int y = 0;
};

// Pixels between the anchor and the popover's near edge.
inline constexpr int kPopoverGap = 4;

// The popover's frame of `width` × `height`. `trayIcon` counts when present and not empty; otherwise
// the pointer is the anchor. A popover larger than `available` keeps its size and aligns with the
// area's top-left corner; an empty `available` leaves the frame unclamped.
ScreenRect placePopover(const std::optional<ScreenRect>& trayIcon, ScreenPoint pointer,
                        const ScreenRect& available, int width, int height);

// The frame where neither the tray icon's place nor the pointer is known (a Wayland client learns
// neither): centred in `available`, or at its top-left corner when larger.
ScreenRect centrePopover(const ScreenRect& available, int width, int height);

}  // namespace larkspan
