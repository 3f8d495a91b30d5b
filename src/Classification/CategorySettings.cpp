#include "Classification/CategorySettings.h"

#include <utility>

#include "Classification/Palette.h"

namespace larkspan {

namespace {

constexpr const char* newCategoryColor = "#AEAEB2";
constexpr int newCategorySortOrder = 999;

}  // namespace

ProductivityBadge productivityBadge(Productivity productivity) {
    switch (productivity) {
        case Productivity::productive:
            return {label(productivity), Palette::green};
        case Productivity::unproductive:
            return {label(productivity), Palette::red};
        case Productivity::neutral:
            break;
    }
    return {label(Productivity::neutral), Palette::grey};
}

bool canDeleteCategory(const Category& category) {
    return category.id != category_id::other;
}

bool canConfirmCategoryName(const std::string& name) {
    return !name.empty();
}

Category newCategory(std::string name, std::string icon, Productivity productivity) {
    Category category;
    category.name = std::move(name);
    category.colorHex = newCategoryColor;
    category.icon = std::move(icon);
    category.productivity = productivity;
    category.sortOrder = newCategorySortOrder;
    return category;
}

Category editedCategory(const Category& original, std::string name, std::string icon,
                        Productivity productivity) {
    Category category = original;
    category.name = std::move(name);
    category.icon = std::move(icon);
    category.productivity = productivity;
    return category;
}

}  // namespace larkspan
