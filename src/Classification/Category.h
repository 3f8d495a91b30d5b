// The categories every activity belongs to, and the 21 with which a new database begins. Their ids
// are fixed: the rule tables name categories by id, so renaming one does not change what rules mean.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace larkspan {

enum class Productivity : int { productive = 1, neutral = 0, unproductive = -1 };

// The case for a stored raw value; none for anything but 1, 0, -1.
std::optional<Productivity> productivityFromRaw(std::int64_t raw);
constexpr int rawValue(Productivity p) {
    return static_cast<int>(p);
}
const char* label(Productivity p);

// An sRGB colour, each channel 0 to 1, always opaque.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;

    // Parses "#RRGGBB" leniently: white space and line breaks around it (Unicode ones too) and the
    // "#" are optional, reading stops at the first non-hex digit, a value past 64 bits saturates,
    // bits above the low 24 are ignored, and text that does not begin with a hex digit gives black.
    static Color fromHex(std::string_view text);
    bool operator==(const Color&) const = default;
};

struct Category {
    std::int64_t id = 0;
    std::string name;
    std::string colorHex;  // "#" and six hex digits
    std::string icon;      // one emoji
    Productivity productivity = Productivity::neutral;
    std::optional<std::int64_t> parentID;
    bool isSystem = false;
    int sortOrder = 0;

    Color color() const { return Color::fromHex(colorHex); }
    bool operator==(const Category&) const = default;

    // The catalogue a new database is seeded with, in order.
    static const std::vector<Category>& seeded();
};

// A catalogue as a look-up by id, for code that looks up many records against one catalogue.
using CategoriesByID = std::unordered_map<std::int64_t, Category>;

// The catalogue by id. Ids are unique in a stored catalogue (its primary key); should one repeat in
// a list made otherwise, the first category with that id wins, as it does for categoryWithID over
// the list itself.
CategoriesByID categoriesByID(const std::vector<Category>& categories);

// The category with `id` in a catalogue; null when `id` is absent or not there.
const Category* categoryWithID(const std::vector<Category>& categories, std::optional<std::int64_t> id);
const Category* categoryWithID(const CategoriesByID& categories, std::optional<std::int64_t> id);

// The ids of the seeded categories. Rules name categories by these ids, never by name.
namespace category_id {
inline constexpr std::int64_t coding = 1;
inline constexpr std::int64_t terminal = 2;
inline constexpr std::int64_t writing = 3;
inline constexpr std::int64_t learning = 4;
inline constexpr std::int64_t email = 5;
inline constexpr std::int64_t communication = 6;
inline constexpr std::int64_t planning = 7;
inline constexpr std::int64_t design = 8;
inline constexpr std::int64_t aiTools = 9;
inline constexpr std::int64_t reading = 10;
inline constexpr std::int64_t research = 11;
inline constexpr std::int64_t music = 12;
inline constexpr std::int64_t system = 13;
inline constexpr std::int64_t files = 14;
inline constexpr std::int64_t awayBreak = 15;  // idle spans
inline constexpr std::int64_t entertainment = 16;
inline constexpr std::int64_t socialMedia = 17;
inline constexpr std::int64_t shopping = 18;
inline constexpr std::int64_t gaming = 19;
inline constexpr std::int64_t timepass = 20;
inline constexpr std::int64_t other = 21;  // the catch-all, and the reading of an absent category
}  // namespace category_id

}  // namespace larkspan
