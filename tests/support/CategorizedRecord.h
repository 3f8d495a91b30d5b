// Closed records in a seeded category, the raw stuff of the analytics figures; and that catalogue
// as a map, built once.
#pragma once

#include <optional>

#include "ActivityBuilder.h"
#include "Analytics/CategoryMap.h"

namespace larkspan::test {

inline constexpr std::int64_t kCoding = 1;        // productive
inline constexpr std::int64_t kMusic = 12;        // neutral
inline constexpr std::int64_t kSocialMedia = 17;  // unproductive
inline constexpr std::int64_t kGaming = 19;       // unproductive

inline ActivityRecord record(Date start, std::int64_t seconds,
                             std::optional<std::int64_t> category = kCoding) {
    return ActivityBuilder(0, start, seconds).category(category);
}

inline const analytics::CategoryMap& seededMap() {
    static const analytics::CategoryMap map = analytics::makeCategoryMap(Category::seeded());
    return map;
}

}  // namespace larkspan::test
