// The seeded catalogue and the lenient colour parse behind every category swatch. A colour text
// may have been edited by hand, so the parse accepts any text and gives black for what it cannot read.
#include "Classification/Category.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace larkspan {

std::optional<Productivity> productivityFromRaw(std::int64_t raw) {
    switch (raw) {
        case 1:
            return Productivity::productive;
        case 0:
            return Productivity::neutral;
        case -1:
            return Productivity::unproductive;
        default:
            return std::nullopt;
    }
}

const char* label(Productivity p) {
    switch (p) {
        case Productivity::productive:
            return "Productive";
        case Productivity::unproductive:
            return "Unproductive";
        case Productivity::neutral:
            break;
    }
    return "Neutral";
}

namespace {

// White space and line breaks in UTF-8: the ASCII controls tab to carriage return, NEL, and every
// Unicode space and line or paragraph separator. Colour texts may come from hand-edited rows.
constexpr std::array<std::string_view, 25> kBlanks = {
    "\t",     "\n",     "\v",     "\f",     "\r",     " ",      "\xC2\x85", "\u00A0", "\u1680",
    "\u2000", "\u2001", "\u2002", "\u2003", "\u2004", "\u2005", "\u2006",   "\u2007", "\u2008",
    "\u2009", "\u200A", "\u2028", "\u2029", "\u202F", "\u205F", "\u3000",
};

// `text` without the white space and line breaks it begins with. Trailing ones need no cut: the
// hex scan stops at them anyway.
std::string_view withoutLeadingBlanks(std::string_view text) {
    for (bool cut = true; cut;) {
        cut = false;
        for (std::string_view blank : kBlanks) {
            if (text.starts_with(blank)) {
                text.remove_prefix(blank.size());
                cut = true;
            }
        }
    }
    return text;
}

int hexDigit(char c) {
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

}  // namespace

Color Color::fromHex(std::string_view text) {
    text = withoutLeadingBlanks(text);
    if (!text.empty() && text.front() == '#')
        text.remove_prefix(1);

    // Like a 64-bit hex scan that overflows by saturating: more than 16 digits keep the maximum,
    // whose low 24 bits are all ones.
    std::uint64_t value = 0;
    bool saturated = false;
    for (char c : text) {
        const int digit = hexDigit(c);
        if (digit < 0)
            break;
        if (value > (UINT64_MAX >> 4))
            saturated = true;
        value = saturated ? UINT64_MAX : (value << 4) | static_cast<std::uint64_t>(digit);
    }
    return Color{static_cast<double>((value >> 16) & 0xFF) / 255.0,
                 static_cast<double>((value >> 8) & 0xFF) / 255.0, static_cast<double>(value & 0xFF) / 255.0};
}

const std::vector<Category>& Category::seeded() {
    using P = Productivity;
    static const std::vector<Category> catalogue = [] {
        struct Row {
            const char* name;
            const char* colorHex;
            const char* icon;
            P productivity;
        };
        // Four icons carry the emoji presentation selector U+FE0F: ⌨️ ✍️ ⚙️ 🛍️.
        const Row rows[] = {
            {"Coding", "#34C759", "\U0001F4BB", P::productive},
            {"Terminal", "#30B0C7", "\u2328\uFE0F", P::productive},
            {"Writing", "#AF52DE", "\u270D\uFE0F", P::productive},
            {"Learning", "#FF9F0A", "\U0001F4DA", P::productive},
            {"Email", "#007AFF", "\U0001F4E7", P::productive},
            {"Communication", "#FFD60A", "\U0001F4AC", P::productive},
            {"Planning", "#32ADE6", "\U0001F4CB", P::productive},
            {"Design", "#FF375F", "\U0001F3A8", P::productive},
            {"AI Tools", "#5E5CE6", "\U0001F916", P::productive},
            {"Reading", "#A2845E", "\U0001F4D6", P::productive},
            {"Research", "#6C6C70", "\U0001F50D", P::productive},
            {"Music", "#FF2D55", "\U0001F3B5", P::neutral},
            {"System", "#8E8E93", "\u2699\uFE0F", P::neutral},
            {"Files", "#FF9500", "\U0001F4C1", P::neutral},
            {"Away / Break", "#8E8E93", "\u2615", P::neutral},
            {"Entertainment", "#FF3B30", "\U0001F3AC", P::unproductive},
            {"Social Media", "#FF6B35", "\U0001F4F1", P::unproductive},
            {"Shopping", "#FF3B30", "\U0001F6CD\uFE0F", P::unproductive},
            {"Gaming", "#BF5AF2", "\U0001F3AE", P::unproductive},
            {"Timepass", "#C7C7CC", "\U0001F634", P::unproductive},
            {"Other", "#AEAEB2", "\u2753", P::neutral},
        };
        std::vector<Category> list;
        int id = 1;
        for (const auto& row : rows) {
            list.push_back(
                Category{id, row.name, row.colorHex, row.icon, row.productivity, std::nullopt, true, id});
            ++id;
        }
        return list;
    }();
    return catalogue;
}

const Category* categoryWithID(const std::vector<Category>& categories, std::optional<std::int64_t> id) {
    if (!id)
        return nullptr;
    const auto found =
        std::find_if(categories.begin(), categories.end(), [&](const Category& c) { return c.id == *id; });
    return found == categories.end() ? nullptr : &*found;
}

CategoriesByID categoriesByID(const std::vector<Category>& categories) {
    CategoriesByID byID;
    byID.reserve(categories.size());
    for (const Category& category : categories)
        byID.try_emplace(category.id, category);
    return byID;
}

const Category* categoryWithID(const CategoriesByID& categories, std::optional<std::int64_t> id) {
    if (!id)
        return nullptr;
    const auto found = categories.find(*id);
    return found == categories.end() ? nullptr : &found->second;
}

}  // namespace larkspan
