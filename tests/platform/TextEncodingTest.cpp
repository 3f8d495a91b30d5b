#include "Platform/Linux/TextEncoding.h"

#include <gtest/gtest.h>

namespace larkspan {
namespace {

using namespace std::string_literals;

TEST(TextEncoding, IllFormedUtf8IsReplacedNeverPassedOn) {
    EXPECT_EQ(sanitizedUtf8("caf\xC3\xA9 \xF0\x9F\x9A\x80"), "caf\xC3\xA9 \xF0\x9F\x9A\x80");  // é, rocket
    EXPECT_EQ(sanitizedUtf8("a\xFF"s + "b"), "a\xEF\xBF\xBD"s + "b");
    EXPECT_EQ(sanitizedUtf8("\xC0\xAF"), "\xEF\xBF\xBD\xEF\xBF\xBD");                  // overlong '/'
    EXPECT_EQ(sanitizedUtf8("\xED\xA0\x80"), "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");  // surrogate
    EXPECT_EQ(sanitizedUtf8("\xF0\x9F\x9A"), "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");  // cut short
    EXPECT_EQ(sanitizedUtf8("a\0b"s), "ab");
    EXPECT_TRUE(isValidUtf8(sanitizedUtf8(std::string(100000, '\x80'))));
    EXPECT_FALSE(isValidUtf8("\xF4\x90\x80\x80"));  // above U+10FFFF
}

TEST(TextEncoding, LegacyWindowNameEncodingsDecode) {
    EXPECT_EQ(latin1ToUtf8("Gr\xFC\xDF"s + "e\0"s), "Gr\xC3\xBC\xC3\x9F"s + "e");
    // What xterm sends for "Héllo 🚀 wörld": Latin-1 with a UTF-8 segment.
    EXPECT_EQ(compoundTextToUtf8("H\xE9llo \x1B%G\xF0\x9F\x9A\x80\x1B%@ w\xF6rld"),
              "H\xC3\xA9llo \xF0\x9F\x9A\x80 w\xC3\xB6rld");
    // An unterminated UTF-8 segment runs to the end; a broken one is repaired.
    EXPECT_EQ(compoundTextToUtf8("\x1B%G\xE2\x9C\x93\xFF"), "\xE2\x9C\x93\xEF\xBF\xBD");
    // Another character set cannot be mapped: its characters show as replacements, then Latin-1 resumes.
    EXPECT_EQ(compoundTextToUtf8("a\x1B$(B\x30\x21\x1B(B z"), "a\xEF\xBF\xBD\xEF\xBF\xBD z");
    EXPECT_EQ(compoundTextToUtf8("\x1B"), "");
}

}  // namespace
}  // namespace larkspan
