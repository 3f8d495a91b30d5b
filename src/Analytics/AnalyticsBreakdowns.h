// Where the time of a period went: by category, by application and by website, each as rows with a
// bar fraction ready to draw.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Analytics/EffectiveCategory.h"
#include "Classification/Category.h"
#include "Data/Database.h"
#include "Tracking/ActivityRecord.h"

namespace larkspan::analytics {

inline constexpr std::size_t kCategoryRows = 8;
inline constexpr std::size_t kApplicationRows = 10;
inline constexpr std::size_t kWebsiteRows = 8;

// One row of the category breakdown.
struct CategoryFigure {
    std::int64_t categoryID = 0;
    std::int64_t seconds = 0;
    double fraction = 0;  // of the seconds of every category, shown or not
    std::string name;     // "Other" for an id missing from the catalogue
    std::string icon;     // "❓" for an id missing from the catalogue
    Color color;          // gray for an id missing from the catalogue
    bool operator==(const CategoryFigure&) const = default;
};

// Seconds per effective category, longest first (equal seconds: lower id first), at most 8 rows.
// Categories past the eighth drop out of the list but stay in the total the fractions divide by, so
// the fractions shown may add up to less than 1. An id missing from the catalogue keeps its own row.
std::vector<CategoryFigure> categoryFigures(const std::vector<ActivityTotal>& records,
                                            const CategoriesByID& catMap);

// One row of the application breakdown.
struct AppFigure {
    std::string app;
    std::int64_t seconds = 0;
    std::string icon;     // icon of the category of the application's first record; "📦" if unknown
    double fraction = 0;  // of the longest application's seconds
    bool operator==(const AppFigure&) const = default;
};

// Seconds per application name, longest first (equal seconds: by name), at most 10 rows. One name
// under two bundle ids is one row, and all away spans are the one row "Away".
std::vector<AppFigure> appFigures(const std::vector<ActivityTotal>& records, const CategoriesByID& catMap);

// One row of the top websites.
struct WebsiteFigure {
    std::string domain;
    std::int64_t seconds = 0;
    double fraction = 0;  // of the first website's seconds
    bool operator==(const WebsiteFigure&) const = default;
};

// The first 8 of the loaded websites, in the store's order (longest first), each scaled to the first.
std::vector<WebsiteFigure> websiteFigures(const std::vector<DomainTotal>& topDomains);

}  // namespace larkspan::analytics
