// The two rules every analytics figure shares: a record without a category counts under "Other"
// (21), and a record is productive only when its category is known and productive.
#pragma once

#include <cstdint>

#include "Classification/Category.h"
#include "Tracking/ActivityRecord.h"

namespace larkspan::analytics {

inline std::int64_t effectiveCategoryID(const ActivityTotal& record) {
    return record.categoryID.value_or(category_id::other);
}

// Whether the record's effective category is in `catMap` and productive. An unknown id never is.
inline bool isProductive(const ActivityTotal& record, const CategoriesByID& catMap) {
    const auto found = catMap.find(effectiveCategoryID(record));
    return found != catMap.end() && found->second.productivity == Productivity::productive;
}

}  // namespace larkspan::analytics
