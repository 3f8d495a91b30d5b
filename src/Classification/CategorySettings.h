// The settings tab's rules for the category list: the productivity badge of each row, which rows can
// be deleted, when a sheet may be confirmed, and the category that "Add" and "Save" hand to the store.
// A new category takes the neutral grey and sorts after every seeded one; an edit never changes a
// category's id, colour, parent, system mark or place, so the rule tables go on pointing at it.
#pragma once

#include <string>

#include "Classification/Category.h"

namespace larkspan {

struct ProductivityBadge {
    std::string text;
    Color color;
    bool operator==(const ProductivityBadge&) const = default;
};

ProductivityBadge productivityBadge(Productivity productivity);

// "Other" catches what a deleted category leaves behind, so it cannot go itself.
bool canDeleteCategory(const Category& category);
// "Add" and "Save" wait for a name; any text at all is one, spaces included.
bool canConfirmCategoryName(const std::string& name);

// What "Add" stores.
Category newCategory(std::string name, std::string icon, Productivity productivity);
// What "Save" stores: `original` with the sheet's name, icon and productivity.
Category editedCategory(const Category& original, std::string name, std::string icon,
                        Productivity productivity);

}  // namespace larkspan
