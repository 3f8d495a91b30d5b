// Closed records in a seeded category, the raw stuff of the analytics figures; and that catalogue
// as a map, built once.
#pragma once

#include <optional>

#include "ActivityBuilder.h"
#include "Classification/Category.h"

namespace larkspan::test {

inline constexpr std::int64_t kCoding = 1;        // productive
inline constexpr std::int64_t kMusic = 12;        // neutral
inline constexpr std::int64_t kSocialMedia = 17;  // unproductive
inline constexpr std::int64_t kGaming = 19;       // unproductive

inline ActivityRecord record(Date start, std::int64_t seconds,
                             std::optional<std::int64_t> category = kCoding) {
    return ActivityBuilder(0, start, seconds).category(category);
}

inline const CategoriesByID& seededMap() {
    static const CategoriesByID map = categoriesByID(Category::seeded());
    return map;
}

}  // namespace larkspan::test
