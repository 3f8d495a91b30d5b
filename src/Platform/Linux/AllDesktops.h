// Floating prompts follow the user from one virtual desktop to the next: the window manager is asked
// to show them on every desktop (EWMH _NET_WM_DESKTOP 0xFFFFFFFF).
#pragma once

#include <cstdint>

struct xcb_connection_t;

namespace larkspan {

// Marks the created but not yet mapped top-level `window` for every desktop. Uses the connection that
// made the window, so the mark reaches the server before the window is mapped. Does nothing when the
// connection is broken.
void showOnAllDesktops(xcb_connection_t* connection, std::uint32_t window);

}  // namespace larkspan
