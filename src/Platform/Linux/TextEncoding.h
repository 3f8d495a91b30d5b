// Turning the text of X properties and desktop files into valid UTF-8. Window titles come from any
// client on the display, so every byte sequence must decode to something printable, never crash.
#pragma once

#include <string>
#include <string_view>

namespace larkspan {

// Whether `text` is well-formed UTF-8 (no overlong forms, no surrogates, nothing above U+10FFFF).
bool isValidUtf8(std::string_view text);

// `text` with each ill-formed sequence replaced by U+FFFD and NUL bytes dropped.
std::string sanitizedUtf8(std::string_view text);

// ISO 8859-1, the encoding of the X `STRING` type, as UTF-8. NUL bytes are dropped.
std::string latin1ToUtf8(std::string_view text);

// The X `COMPOUND_TEXT` type as UTF-8. Handles the forms clients send for titles: ASCII and
// Latin-1 by default and after their designations, and UTF-8 segments (ESC % G … ESC % @).
// Characters of other ISO 2022 sets cannot be mapped here and become U+FFFD each.
std::string compoundTextToUtf8(std::string_view text);

}  // namespace larkspan
