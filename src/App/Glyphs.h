// The emoji that the tray title, the popover and the dashboard share where no category gives one.
#pragma once

namespace larkspan::glyph {

inline constexpr const char* stopwatch = "\u23F1";     // a session without a known category
inline constexpr const char* cup = "\u2615";           // breaks, and no session at all
inline constexpr const char* tomato = "\U0001F345";    // focus
inline constexpr const char* pause = "\u23F8";         // a paused timer
inline constexpr const char* questionMark = "\u2753";  // a past activity without a category

}  // namespace larkspan::glyph
