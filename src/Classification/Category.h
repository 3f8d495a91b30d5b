// The categories every activity belongs to, and the 21 with which a new database begins. Their ids
// are fixed: the rule tables name categories by id, so renaming one does not change what rules mean.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace larkspan {

enum class Productivity : int { productive = 1, neutral = 0, unproductive = -1 };

// The case for a stored raw value; none for anything but 1, 0, -1.
std::optional<Productivity> productivityFromRaw(std::int64_t raw);
constexpr int rawValue(Productivity p) { return static_cast<int>(p); }
const char* label(Productivity p);

// An sRGB colour, each channel 0 to 1, always opaque.
struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;

    // Parses "#RRGGBB" leniently: blanks around it and the "#" are optional, reading stops at the
    // first non-hex digit, bits above the low 24 are ignored, unreadable text gives black.
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

namespace category_id {
inline constexpr std::int64_t learning = 4;
inline constexpr std::int64_t awayBreak = 15;
inline constexpr std::int64_t entertainment = 16;
inline constexpr std::int64_t other = 21;
}  // namespace category_id

}  // namespace larkspan
