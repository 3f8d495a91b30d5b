#include <gtest/gtest.h>

#include "ActivityBuilder.h"
#include "Data/Database.h"
#include "SqliteFile.h"
#include "TempDir.h"

namespace larkspan {
namespace {

using namespace test;

class CategoryQueries : public ::testing::Test {
protected:
    std::int64_t addActivity(std::int64_t category) {
        return db.insertActivity(test::ActivityBuilder(0, 0, 0).category(category));
    }

    TempDir dir;
    Database db{dir / "tracker.db"};
};

TEST_F(CategoryQueries, MissingOrUnknownValuesReadAsDefaults) {
    SqliteFile raw(dir / "tracker.db");
    // Only a table made outside this schema can hold NULL texts: rebuild categories without NOT NULL.
    raw.exec(
        "CREATE TABLE loose (id INTEGER, name TEXT, color_hex TEXT, icon TEXT, productivity INTEGER, "
        "parent_id INTEGER, is_system INTEGER, sort_order INTEGER);"
        "INSERT INTO loose SELECT * FROM categories; DROP TABLE categories; ALTER TABLE loose RENAME TO "
        "categories;"
        "UPDATE categories SET name=NULL, color_hex=NULL, icon=NULL, productivity=5, parent_id=NULL WHERE "
        "id=2;"
        "UPDATE categories SET productivity=-1, parent_id=21 WHERE id=3;");
    const auto categories = db.fetchCategories();
    ASSERT_EQ(categories.size(), 21u);
    EXPECT_EQ(categories[1],
              (Category{2, "", "#AEAEB2", "\u2753", Productivity::neutral, std::nullopt, true, 2}));
    EXPECT_EQ(categories[2].productivity, Productivity::unproductive);
    EXPECT_EQ(categories[2].parentID, 21);
}

TEST_F(CategoryQueries, InsertAndUpdateWriteOnlyTheirColumns) {
    db.insertCategory(
        Category{77, "Deep Work", "#101010", "\U0001F9E0", Productivity::productive, 1, true, 0});
    Category added = db.fetchCategories().front();  // sort order 0 comes first
    EXPECT_EQ(added,
              (Category{22, "Deep Work", "#101010", "\U0001F9E0", Productivity::productive, 1, false, 0}));
    // A name already taken is refused.
    EXPECT_THROW(db.insertCategory(Category{0, "Coding", "#0", "x", Productivity::neutral, {}, false, 5}),
                 DBError);

    Category changed = added;
    changed.name = "Focus";
    changed.productivity = Productivity::unproductive;
    changed.parentID = std::nullopt;  // not written by an update
    changed.sortOrder = 50;           // likewise
    db.updateCategory(changed);
    changed.parentID = 1;
    changed.sortOrder = 0;
    EXPECT_EQ(db.fetchCategories().front(), changed);
    changed.name = "Coding";
    EXPECT_THROW(db.updateCategory(changed), DBError);
}

TEST_F(CategoryQueries, DeletingMovesActivitiesToOtherAndDropsRulesButNeverOtherAndUndoesAFailure) {
    const auto activity = addActivity(16);
    const auto untouched = addActivity(4);
    db.saveLearnedRule("domain", "video.example", 16);
    db.saveLearnedRule("domain", "docs.example", 4);

    db.deleteCategory(16);
    EXPECT_EQ(db.fetchActivity(activity)->categoryID, 21);
    EXPECT_EQ(db.fetchActivity(untouched)->categoryID, 4);
    EXPECT_EQ(db.fetchLearnedRules(), (std::vector<LearnedRule>{{"domain", "docs.example", 4}}));
    EXPECT_EQ(db.fetchCategories().size(), 20u);

    // Other cannot be deleted.
    db.deleteCategory(21);
    EXPECT_EQ(db.fetchCategories().size(), 20u);
    EXPECT_EQ(db.fetchActivity(activity)->categoryID, 21);

    // A child category still points at 10, so its DELETE fails after the rules and activities
    // statements already ran: all three must be undone.
    db.insertCategory(Category{0, "Papers", "#000000", "x", Productivity::productive, 10, false, 30});
    const auto papers = addActivity(10);
    db.saveLearnedRule("domain", "arxiv.org", 10);
    EXPECT_THROW(db.deleteCategory(10), DBError);
    EXPECT_EQ(db.fetchActivity(papers)->categoryID, 10);
    EXPECT_EQ(db.fetchLearnedRules(),
              (std::vector<LearnedRule>{{"domain", "docs.example", 4}, {"domain", "arxiv.org", 10}}));
    EXPECT_EQ(db.fetchCategories().size(), 21u);
    // The connection is out of the transaction: later writes commit by themselves.
    db.deleteActivity(papers);
    EXPECT_EQ(SqliteFile(dir / "tracker.db")
                  .integer("SELECT COUNT(*) FROM activities WHERE id=" + std::to_string(papers)),
              0);
}

}  // namespace
}  // namespace larkspan
