// The settings tab's category rules, and what the store does with the categories they build.
#include <gtest/gtest.h>

#include "Classification/CategorySettings.h"
#include "Data/Database.h"
#include "TempDir.h"

namespace larkspan {
namespace {

using namespace test;

TEST(CategorySettings, NamesAndDeletion) {
    EXPECT_FALSE(canConfirmCategoryName(""));
    EXPECT_TRUE(canConfirmCategoryName(" "));
    EXPECT_TRUE(canDeleteCategory(*categoryWithID(Category::seeded(), category_id::awayBreak)));
}

TEST(CategorySettings, StoredVerbatimAfterEverySeededOneAndEditedInPlace) {
    TempDir dir;
    Database db{dir / "tracker.db"};
    const std::string names[] = {"Tom's stuff", "'); DROP TABLE categories; --",
                                 "\u05e2\u05d1\u05d5\u05d3\u05d4", "\U0001F600 fun",
                                 std::string(10'000, 'n')};
    for (const auto& name : names)
        db.insertCategory(newCategory(name, "\U0001F4E6", Productivity::productive));
    const auto stored = db.fetchCategories();
    ASSERT_EQ(stored.size(), Category::seeded().size() + std::size(names));
    for (std::size_t i = 0; i < std::size(names); ++i) {
        const auto& category = stored[Category::seeded().size() + i];
        EXPECT_EQ(category.name, names[i]);
    }

    const Category coding = *categoryWithID(stored, category_id::coding);
    db.updateCategory(editedCategory(coding, "Coder's work", "\u2328", Productivity::neutral));
    const Category renamed = *categoryWithID(db.fetchCategories(), category_id::coding);
    EXPECT_EQ(renamed, editedCategory(coding, "Coder's work", "\u2328", Productivity::neutral));
}

}  // namespace
}  // namespace larkspan
