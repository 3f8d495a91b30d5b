// Closed records in a seeded category, the raw stuff of the analytics figures; and that catalogue
// as a map, built once.
#pragma once

#include <optional>
#include <string>

#include "Classification/Category.h"
#include "Tracking/ActivityRecord.h"

namespace larkspan::test {

inline constexpr std::int64_t kCoding = 1;        // productive
inline constexpr std::int64_t kMusic = 12;        // neutral
inline constexpr std::int64_t kSocialMedia = 17;  // unproductive
inline constexpr std::int64_t kGaming = 19;       // unproductive

inline ActivityTotal record(Date start, std::int64_t seconds, std::optional<std::int64_t> category = kCoding,
                            std::string app = "Notes") {
    return {std::move(app), category, start, start + static_cast<double>(seconds), seconds};
}

inline const CategoriesByID& seededMap() {
    static const CategoriesByID map = categoriesByID(Category::seeded());
    return map;
}

}  // namespace larkspan::test
