// The statements on `categories`. The foreign keys from activities and learned rules (no ON DELETE
// action) decide what deleteCategory must release first.
#include "Data/Database.h"

namespace larkspan {

std::vector<Category> Database::fetchCategories() {
    std::vector<Category> categories;
    queryRows(
        "SELECT id, name, color_hex, icon, productivity, parent_id, is_system, sort_order\n"
        "FROM categories ORDER BY sort_order ASC",
        nullptr, [&](sqlite3_stmt* stmt) {
            Category category;
            category.id = sqlite3_column_int64(stmt, 0);
            category.name = string(stmt, 1).value_or("");
            category.colorHex = string(stmt, 2).value_or("#AEAEB2");
            category.icon = string(stmt, 3).value_or("\u2753");
            category.productivity =
                productivityFromRaw(sqlite3_column_int64(stmt, 4)).value_or(Productivity::neutral);
            category.parentID = columnOptionalInt64(stmt, 5);
            category.isSystem = columnBool(stmt, 6);
            category.sortOrder = sqlite3_column_int(stmt, 7);
            categories.push_back(std::move(category));
        });
    return categories;
}

void Database::insertCategory(const Category& category) {
    runOnQueue([&] {
        run("INSERT INTO categories (name, color_hex, icon, productivity, parent_id, is_system, sort_order)\n"
            "VALUES (?, ?, ?, ?,\n?, 0, ?)",
            category.name, category.colorHex, category.icon, rawValue(category.productivity),
            category.parentID, category.sortOrder);
    });
}

void Database::updateCategory(const Category& category) {
    runOnQueue([&] {
        run("UPDATE categories SET name=?, color_hex=?, icon=?,\nproductivity=? WHERE id=?", category.name,
            category.colorHex, category.icon, rawValue(category.productivity), category.id);
    });
}

// One transaction, so that a failure leaves rules, activities and the category as they were. The
// learned rules go first: they point at the category and would otherwise block its deletion.
void Database::deleteCategory(std::int64_t id) {
    if (id == category_id::other)
        return;
    runOnQueue([&] {
        inTransaction([&] {
            run("DELETE FROM learned_rules WHERE category_id=?", id);
            run("UPDATE activities SET category_id=? WHERE category_id=?", category_id::other, id);
            run("DELETE FROM categories WHERE id=?", id);
        });
    });
}

}  // namespace larkspan
