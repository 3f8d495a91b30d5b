// The leading user-perceived characters of a UTF-8 text. A window title identifies a resource by
// its first characters as a person reads them, so an emoji with a skin tone, a family joined with
// zero-width joiners, a flag or a letter with combining accents each count as one.
//
// The segmenter is a compact form of the extended grapheme cluster rules: it knows line breaks and
// controls, combining marks and spacing marks of the common scripts, variation selectors, emoji
// modifiers, tag characters, zero-width joiner sequences between pictographs and pairs of regional
// indicators. Conjoining Hangul jamo and prepended marks split as separate characters; titles
// seldom hold them and precomposed Hangul syllables are single code points anyway.
#pragma once

#include <cstddef>
#include <string_view>

namespace larkspan {

// The longest prefix of `text` that holds at most `count` user-perceived characters; the whole text
// when it has no more. Never splits a character. Invalid UTF-8 is tolerated: each byte that does not
// begin a well-formed sequence (overlong forms, surrogates and values above U+10FFFF included) is a
// character of its own. Embedded NUL bytes are ordinary controls.
std::string_view graphemePrefix(std::string_view text, std::size_t count);

}  // namespace larkspan
