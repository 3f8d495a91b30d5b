#include "Timeline/GraphemePrefix.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace larkspan {

namespace {

// What a code point contributes to the break rules.
enum class Kind { other, control, cr, lf, extend, zwj, regionalIndicator, pictographic };

struct Range {
    char32_t first;
    char32_t last;
};

// Never begin a character: combining and spacing marks of the common scripts, joiners, variation
// selectors, emoji modifiers and tag characters. Sorted, disjoint.
constexpr std::array kExtend = {
    Range{0x0300, 0x036F},   Range{0x0483, 0x0489},   Range{0x0591, 0x05BD},   Range{0x05BF, 0x05BF},
    Range{0x05C1, 0x05C2},   Range{0x05C4, 0x05C5},   Range{0x05C7, 0x05C7},   Range{0x0610, 0x061A},
    Range{0x064B, 0x065F},   Range{0x0670, 0x0670},   Range{0x06D6, 0x06DC},   Range{0x06DF, 0x06E4},
    Range{0x06E7, 0x06E8},   Range{0x06EA, 0x06ED},   Range{0x0900, 0x0903},   Range{0x093A, 0x093C},
    Range{0x093E, 0x094F},   Range{0x0951, 0x0957},   Range{0x0962, 0x0963},   Range{0x0981, 0x0983},
    Range{0x09BC, 0x09BC},   Range{0x09BE, 0x09C4},   Range{0x09C7, 0x09C8},   Range{0x09CB, 0x09CD},
    Range{0x09D7, 0x09D7},   Range{0x0E31, 0x0E31},   Range{0x0E34, 0x0E3A},   Range{0x0E47, 0x0E4E},
    Range{0x1AB0, 0x1AFF},   Range{0x1DC0, 0x1DFF},   Range{0x200C, 0x200C},   Range{0x20D0, 0x20FF},
    Range{0x302A, 0x302F},   Range{0x3099, 0x309A},   Range{0xFE00, 0xFE0F},   Range{0xFE20, 0xFE2F},
    Range{0x1F3FB, 0x1F3FF}, Range{0xE0020, 0xE007F}, Range{0xE0100, 0xE01EF},
};

// Extended pictographs: the code points that zero-width joiners glue into one emoji. Sorted,
// disjoint, and clear of the regional indicators U+1F1E6 to U+1F1FF and the modifiers above.
constexpr std::array kPictographic = {
    Range{0x00A9, 0x00A9},   Range{0x00AE, 0x00AE},   Range{0x203C, 0x203C},   Range{0x2049, 0x2049},
    Range{0x2122, 0x2122},   Range{0x2139, 0x2139},   Range{0x2194, 0x21AA},   Range{0x231A, 0x23FF},
    Range{0x24C2, 0x24C2},   Range{0x25AA, 0x25FE},   Range{0x2600, 0x27BF},   Range{0x2934, 0x2935},
    Range{0x2B05, 0x2B55},   Range{0x3030, 0x3030},   Range{0x303D, 0x303D},   Range{0x3297, 0x3299},
    Range{0x1F000, 0x1F0FF}, Range{0x1F10D, 0x1F10F}, Range{0x1F12F, 0x1F12F}, Range{0x1F16C, 0x1F171},
    Range{0x1F17E, 0x1F17F}, Range{0x1F18E, 0x1F18E}, Range{0x1F191, 0x1F19A}, Range{0x1F1AD, 0x1F1E5},
    Range{0x1F201, 0x1F20F}, Range{0x1F21A, 0x1F21A}, Range{0x1F22F, 0x1F22F}, Range{0x1F232, 0x1F23A},
    Range{0x1F23C, 0x1F23F}, Range{0x1F249, 0x1F3FA}, Range{0x1F400, 0x1F53D}, Range{0x1F546, 0x1F64F},
    Range{0x1F680, 0x1F6FF}, Range{0x1F774, 0x1F77F}, Range{0x1F7D5, 0x1F7FF}, Range{0x1F80C, 0x1F80F},
    Range{0x1F848, 0x1F84F}, Range{0x1F85A, 0x1F85F}, Range{0x1F888, 0x1F88F}, Range{0x1F8AE, 0x1F8FF},
    Range{0x1F90C, 0x1F93A}, Range{0x1F93C, 0x1F945}, Range{0x1F947, 0x1FAFF}, Range{0x1FC00, 0x1FFFD},
};

template <std::size_t N>
bool contains(const std::array<Range, N>& table, char32_t c) {
    const auto it = std::upper_bound(table.begin(), table.end(), c,
                                     [](char32_t value, const Range& r) { return value < r.first; });
    return it != table.begin() && c <= std::prev(it)->last;
}

Kind kindOf(char32_t c) {
    if (c == U'\r')
        return Kind::cr;
    if (c == U'\n')
        return Kind::lf;
    if (c == 0x200D)
        return Kind::zwj;
    if (c < 0x20 || (c >= 0x7F && c <= 0x9F) || c == 0x2028 || c == 0x2029)
        return Kind::control;
    if (c < 0x0300)
        return (c == 0xA9 || c == 0xAE) ? Kind::pictographic : Kind::other;
    if (c >= 0x1F1E6 && c <= 0x1F1FF)
        return Kind::regionalIndicator;
    if (contains(kExtend, c))
        return Kind::extend;
    if (contains(kPictographic, c))
        return Kind::pictographic;
    return Kind::other;
}

struct Decoded {
    Kind kind;
    std::size_t length;  // bytes, 1 to 4
};

// Reads one code point at the start of `s` (not empty). A byte that does not begin a well-formed
// sequence is taken alone, as a control, so that nothing joins to it.
Decoded decode(std::string_view s) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(s[i]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80)
        return {kindOf(lead), 1};

    std::size_t length = 0;
    char32_t c = 0;
    char32_t minimum = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2, c = lead & 0x1F, minimum = 0x80;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3, c = lead & 0x0F, minimum = 0x800;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4, c = lead & 0x07, minimum = 0x10000;
    } else {
        return {Kind::control, 1};
    }
    if (s.size() < length)
        return {Kind::control, 1};
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80)
            return {Kind::control, 1};
        c = (c << 6) | (byte(i) & 0x3F);
    }
    if (c < minimum || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF))
        return {Kind::control, 1};
    return {kindOf(c), length};
}

}  // namespace

std::string_view graphemePrefix(std::string_view text, std::size_t count) {
    if (count == 0)
        return text.substr(0, 0);

    std::size_t characters = 0;
    std::size_t pos = 0;
    Kind previous = Kind::control;       // so that the first code point begins a character
    bool pictographThenExtends = false;  // the run since the last pictograph holds only extenders
    bool joinerAfterPictograph = false;  // the previous code point is a joiner ending such a run
    std::size_t regionalRun = 0;         // regional indicators immediately before this code point

    while (pos < text.size()) {
        const Decoded next = decode(text.substr(pos));
        const Kind kind = next.kind;

        bool joins = false;
        if (previous == Kind::cr && kind == Kind::lf) {
            joins = true;
        } else if (previous == Kind::control || previous == Kind::cr || previous == Kind::lf ||
                   kind == Kind::control || kind == Kind::cr || kind == Kind::lf) {
            joins = false;
        } else if (kind == Kind::extend || kind == Kind::zwj) {
            joins = true;
        } else if (kind == Kind::pictographic && joinerAfterPictograph) {
            joins = true;
        } else if (kind == Kind::regionalIndicator && regionalRun % 2 == 1) {
            joins = true;
        }

        if (!joins) {
            if (characters == count)
                break;
            ++characters;
        }

        joinerAfterPictograph = kind == Kind::zwj && pictographThenExtends;
        if (kind == Kind::pictographic) {
            pictographThenExtends = true;
        } else if (kind != Kind::extend) {
            pictographThenExtends = false;
        }
        regionalRun = kind == Kind::regionalIndicator ? regionalRun + 1 : 0;
        previous = kind;
        pos += next.length;
    }
    return text.substr(0, pos);
}

}  // namespace larkspan
