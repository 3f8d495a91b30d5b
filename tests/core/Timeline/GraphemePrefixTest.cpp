#include "Timeline/GraphemePrefix.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>
#include <utility>

namespace larkspan {
namespace {

using namespace std::string_view_literals;

TEST(GraphemePrefix, EachUserPerceivedCharacterCountsOnce) {
    struct Case {
        std::string_view text;
        std::size_t count;
        std::string_view prefix;
    };
    const Case cases[] = {
        {"abc", 2, "ab"},
        {"abc", 10, "abc"},
        {"e\u0301\u0302x", 1, "e\u0301\u0302"},  // combining marks
        {"\u2764\uFE0Fx", 1, "\u2764\uFE0F"},    // variation selector
        {"\U0001F469\U0001F3FD\u200D\U0001F4BBx", 1,
         "\U0001F469\U0001F3FD\u200D\U0001F4BB"},                                      // ZWJ with tone
        {"\U0001F3F3\uFE0F\u200D\U0001F308x", 1, "\U0001F3F3\uFE0F\u200D\U0001F308"},  // rainbow flag
        {"a\u200D\U0001F308", 1, "a\u200D"},  // a joiner after a letter glues nothing after it
        {"\U0001F1E9\U0001F1EA\U0001F1EB\U0001F1F7", 1, "\U0001F1E9\U0001F1EA"},  // two flags
        {"\U0001F1E9\U0001F1EA\U0001F1EB", 2, "\U0001F1E9\U0001F1EA\U0001F1EB"},  // a lone indicator
        {"\U0001F3F4\U000E0067\U000E0062\U000E0065\U000E006E\U000E0067\U000E007Fx", 1,
         "\U0001F3F4\U000E0067\U000E0062\U000E0065\U000E006E\U000E0067\U000E007F"},  // tag sequence
        {"\u0928\u093F\u0939", 1, "\u0928\u093F"},                                   // Devanagari vowel sign
        {"a\r\nb", 2, "a\r\n"},
        {"\n\u0301x", 1, "\n"},        // a mark after a control begins its own character
        {"a\0\u0301b"sv, 2, "a\0"sv},  // embedded NUL is a control
        // Invalid UTF-8: one character per bad byte.
        {"\xC3z", 1, "\xC3"},             // sequence cut short by a letter
        {"\xE2\x82", 1, "\xE2"},          // cut short by the end
        {"\xED\xA0\x80", 1, "\xED"},      // surrogate
        {"\xF4\x90\x80\x80", 1, "\xF4"},  // above U+10FFFF
        {"\x80\x80", 1, "\x80"},          // stray continuation
        {"\xFF\u0301", 1, "\xFF"},        // nothing joins a bad byte
    };
    for (const Case& c : cases) {
        EXPECT_EQ(graphemePrefix(c.text, c.count), c.prefix) << c.text << " / " << c.count;
    }
}

TEST(GraphemePrefix, LongRandomBytesAdvanceByWholeCharactersToTheEnd) {
    std::mt19937 random(8);
    std::string text(100'000, '\0');
    for (char& c : text)
        c = static_cast<char>(random() % 256);
    std::size_t previous = 0;
    for (std::size_t n = 1; previous < text.size(); ++n) {
        const std::string_view prefix = graphemePrefix(text, n);
        ASSERT_GT(prefix.size(), previous) << n;
        ASSERT_EQ(prefix.substr(0, previous), graphemePrefix(text, n - 1)) << n;
        previous = prefix.size();
        if (n == 300)
            break;  // enough to cross every kind of byte; the whole text follows
    }
    EXPECT_EQ(graphemePrefix(text, text.size()), std::string_view(text));
    EXPECT_EQ(graphemePrefix(std::string(100'000, 'x'), 60).size(), 60u);
}

}  // namespace
}  // namespace larkspan
