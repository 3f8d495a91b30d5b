// What the X11 desktop is told about, and asked about, for the floating prompts: they follow the user
// to every virtual desktop, and their rounded corners need a compositing manager to be see-through.
#pragma once

#include <cstdint>

struct xcb_connection_t;

namespace larkspan {

// Marks the created but not yet mapped top-level `window` for every desktop (EWMH _NET_WM_DESKTOP
// 0xFFFFFFFF). Uses the connection that made the window, so the mark reaches the server before the
// window is mapped. Does nothing when the connection is broken.
void showOnAllDesktops(xcb_connection_t* connection, std::uint32_t window);

// Whether a compositing manager runs on the default screen (it owns _NET_WM_CM_S<screen>). Without
// one, the transparent parts of a window show black.
bool compositingManagerRunning(xcb_connection_t* connection);

}  // namespace larkspan
