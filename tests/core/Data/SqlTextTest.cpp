#include "Data/SqlText.h"

#include <gtest/gtest.h>

#include "Data/Database.h"
#include "SqliteFile.h"
#include "TempDir.h"

namespace larkspan {
namespace {

using namespace std::string_literals;
using test::SqliteFile;
using test::TempDir;

// Texts that break naive SQL building or byte handling.
const std::vector<std::string>& hostileTexts() {
    static const std::vector<std::string> texts = {
        "it's O'Brien's ''quoted''",
        "'); DROP TABLE activities; --",
        "x', 1, 1, 1); DELETE FROM categories; --",
        "emoji \U0001F9D1\u200D\U0001F4BB \u270D\uFE0F",
        "\xFF\xFE invalid \xC3( UTF-8 \xED\xA0\x80",
        "\u05E9\u05DC\u05D5\u05DD \u202Eright-to-left",
        std::string(100000, 'w') + "'",
        "",
    };
    return texts;
}

TEST(SqlText, EscapingDoublesQuotesAndStopsAtNulLikeBinding) {
    EXPECT_EQ(escapeQuotes("a'b''c"), "a''b''''c");
    EXPECT_EQ(escapeQuotes("before\0'after"s), "before");
    EXPECT_EQ(sqlNumber(0.1 + 0.2), "0.30000000000000004");
    EXPECT_EQ(sqlNumber(1700000000.5), "1700000000.5");
    EXPECT_EQ(sqlNumber(std::numeric_limits<double>::quiet_NaN()), "NULL");
    EXPECT_EQ(sqlNumber(std::int64_t{-9007199254740993}), "-9007199254740993");
}

TEST(SqlText, HostileTextSurvivesEveryBoundAndInterpolatedPathAndTheSchemaStays) {
    TempDir dir;
    Database db(dir / "tracker.db");
    SqliteFile raw(dir / "tracker.db");
    const std::string schema = raw.text("SELECT group_concat(sql, ';') FROM sqlite_master");
    int sortOrder = 100;
    for (const std::string& text : hostileTexts()) {
        SCOPED_TRACE(text.substr(0, 60));
        // Bound: a new activity, a new task and a retitled task.
        ActivityRecord record;
        record.appName = text;
        record.windowTitle = text;
        record.notes = text;
        const auto id = db.insertActivity(record);
        EXPECT_EQ(db.fetchActivity(id)->appName, text);
        EXPECT_EQ(db.fetchActivity(id)->windowTitle, text);
        const auto todo = db.insertTodo(text, 0);
        db.updateTodoTitle(todo, text + "!");
        const auto todos = db.fetchTodayTodos(0);
        EXPECT_EQ(todos.back().title, text + "!");

        // Interpolated: notes, a learned rule's key, a category's texts.
        db.updateActivityNotes(id, text);
        EXPECT_EQ(db.fetchActivity(id)->notes, text);
        db.saveLearnedRule("title", text, 4);
        EXPECT_EQ(db.fetchLearnedRules().back().ruleKey, text);
        Category category{0, "new " + text, "#123456",  text, Productivity::unproductive,
                          1, false,         sortOrder++};
        db.insertCategory(category);
        category.id = db.fetchCategories().back().id;
        EXPECT_EQ(db.fetchCategories().back(), category);
        category.name = "renamed " + text;
        db.updateCategory(category);
        EXPECT_EQ(db.fetchCategories().back().name, category.name);
    }
    EXPECT_EQ(raw.text("SELECT group_concat(sql, ';') FROM sqlite_master"), schema);
    EXPECT_EQ(raw.integer("SELECT COUNT(*) FROM categories"), 21 + static_cast<int>(hostileTexts().size()));
    EXPECT_EQ(raw.text("PRAGMA integrity_check"), "ok");
}

TEST(SqlText, EmbeddedNulCutsTheTextTheSameWayOnBothPaths) {
    TempDir dir;
    Database db(dir / "tracker.db");
    ActivityRecord record;
    record.appName = "app\0hidden"s;
    record.notes = "note\0hidden"s;
    const auto id = db.insertActivity(record);
    EXPECT_EQ(db.fetchActivity(id)->appName, "app");
    EXPECT_EQ(db.fetchActivity(id)->notes, "note");
    db.updateActivityNotes(id, "edited\0' WHERE 0; --"s);
    EXPECT_EQ(db.fetchActivity(id)->notes, "edited");
}

}  // namespace
}  // namespace larkspan
