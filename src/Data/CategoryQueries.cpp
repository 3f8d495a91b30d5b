// The statements on `categories`. The user's own categories are written as statement text with
// their texts quoted; the foreign keys from activities and learned rules (no ON DELETE action)
// decide what deleteCategory must release first.
#include "Data/Database.h"
#include "Data/SqlText.h"

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
    const std::string parent = category.parentID ? sqlNumber(*category.parentID) : "NULL";
    const std::string sql =
        "INSERT INTO categories (name, color_hex, icon, productivity, parent_id, is_system, sort_order)\n"
        "VALUES ('" +
        escapeQuotes(category.name) + "', '" + escapeQuotes(category.colorHex) + "', '" +
        escapeQuotes(category.icon) + "', " + sqlNumber(rawValue(category.productivity)) + ",\n" + parent +
        ", 0, " + sqlNumber(category.sortOrder) + ")";
    runOnQueue([&] { exec(sql); });
}

void Database::updateCategory(const Category& category) {
    const std::string sql = "UPDATE categories SET name='" + escapeQuotes(category.name) + "', color_hex='" +
                            escapeQuotes(category.colorHex) + "', icon='" + escapeQuotes(category.icon) +
                            "',\nproductivity=" + sqlNumber(rawValue(category.productivity)) +
                            " WHERE id=" + sqlNumber(category.id);
    runOnQueue([&] { exec(sql); });
}

// One transaction, so that a failure leaves rules, activities and the category as they were. The
// learned rules go first: they point at the category and would otherwise block its deletion.
void Database::deleteCategory(std::int64_t id) {
    if (id == category_id::other)
        return;
    const std::string target = sqlNumber(id);
    runOnQueue([&] {
        exec("BEGIN IMMEDIATE");
        try {
            exec("DELETE FROM learned_rules WHERE category_id=" + target);
            exec("UPDATE activities SET category_id=21 WHERE category_id=" + target);
            exec("DELETE FROM categories WHERE id=" + target);
            exec("COMMIT");
        } catch (const DBError&) {
            try {
                exec("ROLLBACK");
            } catch (const DBError&) {
                // SQLite has already rolled back on its own; the original error is what counts.
            }
            throw;
        }
    });
}

}  // namespace larkspan
