#include <gtest/gtest.h>

#include "Data/Database.h"
#include "SqliteFile.h"
#include "TempDir.h"

namespace larkspan {
namespace {

using namespace std::string_literals;
using namespace test;

// Everything a start could change: the schema with its version counter, and every row of the
// tables start-up writes to.
std::string startUpState(const std::filesystem::path& file) {
    SqliteFile raw(file);
    return std::to_string(raw.integer("PRAGMA schema_version")) + "|" +
           raw.text(
               "SELECT group_concat(type || name || ifnull(sql, ''), ';') FROM "
               "(SELECT * FROM sqlite_master ORDER BY name)") +
           "|" +
           raw.text(
               "SELECT group_concat(id || name || color_hex || icon || productivity || is_system || "
               "sort_order, ';') FROM categories");
}

TEST(DatabaseCore, FreshFileGetsTheSeededCatalogueAndWal) {
    TempDir dir;
    Database db(dir / "tracker.db");

    EXPECT_EQ(db.fetchCategories(), Category::seeded());
    SqliteFile raw(dir / "tracker.db");
    EXPECT_EQ(raw.text("PRAGMA journal_mode"), "wal");
}

TEST(DatabaseCore, SecondStartChangesNothingAndDeletedCategoriesStayDeleted) {
    TempDir dir;
    {
        Database db(dir / "tracker.db");
        db.deleteCategory(20);
    }
    const std::string before = startUpState(dir / "tracker.db");
    { Database again(dir / "tracker.db"); }
    EXPECT_EQ(startUpState(dir / "tracker.db"), before);

    // Only a catalogue emptied altogether is seeded again, with its ids.
    SqliteFile(dir / "tracker.db").exec("DELETE FROM categories");
    EXPECT_EQ(Database(dir / "tracker.db").fetchCategories(), Category::seeded());
}

TEST(DatabaseCore, OriginalActivitiesTableGainsManualAndNotesColumns) {
    TempDir dir;
    {
        SqliteFile raw(dir / "tracker.db");
        raw.exec(
            "CREATE TABLE activities (id INTEGER PRIMARY KEY AUTOINCREMENT, app_name TEXT NOT NULL,"
            " bundle_id TEXT, window_title TEXT, url TEXT, url_domain TEXT, category_id INTEGER,"
            " confidence REAL NOT NULL DEFAULT 1.0, needs_approval INTEGER NOT NULL DEFAULT 0,"
            " is_approved INTEGER NOT NULL DEFAULT 0, start_time REAL NOT NULL, end_time REAL,"
            " duration_seconds INTEGER NOT NULL DEFAULT 0, created_at REAL NOT NULL DEFAULT (unixepoch()));"
            "INSERT INTO activities (app_name, start_time, end_time, duration_seconds)"
            " VALUES ('Terminal', 100.5, 160.5, 60);");
    }
    Database db(dir / "tracker.db");

    const auto old = db.fetchActivity(1);
    ASSERT_TRUE(old.has_value());
    EXPECT_EQ(old->durationSeconds, 60);
    EXPECT_FALSE(old->isManual);
    // New rows use both columns.
    ActivityRecord manual = ActivityRecord::manual(200, 260, 3, "Reading", std::string("chapter 4"));
    const auto id = db.insertActivity(manual);
    manual.id = id;
    EXPECT_EQ(db.fetchActivity(id), manual);
}

TEST(DatabaseCore, BorrowedIdentifiersBecomeRoleIdentifiers) {
    TempDir dir;
    { Database fresh(dir / "tracker.db"); }
    {
        // A database as earlier builds left it: no data step done yet.
        SqliteFile raw(dir / "tracker.db");
        raw.exec(
            "PRAGMA user_version = 0;"
            "INSERT INTO activities (app_name, bundle_id, start_time) VALUES ('GNOME Terminal', "
            "'com.apple.Terminal', 1), ('xterm', 'com.apple.Terminal', 2), ('Firefox', "
            "'org.mozilla.firefox', 3);"
            "INSERT INTO learned_rules (rule_type, rule_key, category_id) VALUES ('bundle_id', "
            "'com.apple.Terminal', 11), ('app_name', 'com.apple.Terminal', 12), ('bundle_id', "
            "'com.apple.finder', 4), ('bundle_id', 'org.larkspan.role.files', 10);");
    }
    Database db(dir / "tracker.db");
    SqliteFile raw(dir / "tracker.db");
    EXPECT_EQ(raw.text("SELECT group_concat(bundle_id, ' ') FROM activities"),
              "org.larkspan.role.terminal org.larkspan.role.terminal org.mozilla.firefox");
    // Only "bundle_id" rules are renamed; a rule already under the role id is the later answer.
    EXPECT_EQ(raw.text("SELECT group_concat(rule_type || ' ' || rule_key || ' ' || category_id, ', ') FROM "
                       "(SELECT * FROM learned_rules ORDER BY id)"),
              "bundle_id org.larkspan.role.terminal 11, app_name com.apple.Terminal 12, "
              "bundle_id org.larkspan.role.files 10");
    EXPECT_EQ(raw.integer("PRAGMA user_version"), 1);
}

// Every value is bound: texts that would break a statement written as text are stored verbatim.
TEST(DatabaseCore, HostileTextsRoundTripVerbatimAndTheSchemaStays) {
    TempDir dir;
    Database db(dir / "tracker.db");
    SqliteFile raw(dir / "tracker.db");
    const std::string schema = raw.text("SELECT group_concat(sql, ';') FROM sqlite_master");
    for (const std::string& text : {"it's O'Brien's ''quoted''"s, "'); DROP TABLE categories; --"s,
                                    "emoji \U0001F9D1\u200D\U0001F4BB \xFF\xFE invalid \xC3("s}) {
        ActivityRecord record;
        record.appName = text;
        const auto id = db.insertActivity(record);
        db.updateActivityNotes(id, text);
        EXPECT_EQ(db.fetchActivity(id)->notes, text);
        EXPECT_EQ(db.fetchActivity(id)->appName, text);
        db.saveLearnedRule("title", text, 4);
        EXPECT_EQ(db.fetchLearnedRules().back().ruleKey, text);
    }
    EXPECT_EQ(raw.text("SELECT group_concat(sql, ';') FROM sqlite_master"), schema);
    EXPECT_EQ(raw.integer("SELECT COUNT(*) FROM categories"), 21);
}

}  // namespace
}  // namespace larkspan
