// The schema, brought up to date on every start, and the first filling of the category catalogue.
//
// The schema steps are safe to repeat: CREATE statements say IF NOT EXISTS, and the two columns
// added after the first release are added by an ALTER whose duplicate-column failure on an
// up-to-date database is ignored. Databases made before activities had is_manual (manual entries)
// and notes (the user's notes) gain both columns here; their rows read is_manual 0 and notes NULL.
//
// Steps that rewrite stored data run once each, counted in PRAGMA user_version:
//   1  the desktop's own tools (terminals, mail clients, file managers, …) were stored under another
//      platform's identifier of the same role; they take Larkspan's role identifiers.
// A second start therefore changes nothing.
#include "Data/Database.h"
#include "Platform/AppRoles.h"

namespace larkspan {
namespace {

const char* const kCreateCategories =
    "CREATE TABLE IF NOT EXISTS categories (\n"
    "    id INTEGER PRIMARY KEY AUTOINCREMENT,\n"
    "    name TEXT NOT NULL UNIQUE,\n"
    "    color_hex TEXT NOT NULL DEFAULT '#AEAEB2',\n"
    "    icon TEXT NOT NULL DEFAULT '\u2753',\n"
    "    productivity INTEGER NOT NULL DEFAULT 0,\n"
    "    parent_id INTEGER REFERENCES categories(id),\n"
    "    is_system INTEGER NOT NULL DEFAULT 0,\n"
    "    sort_order INTEGER NOT NULL DEFAULT 999\n"
    ");";

const char* const kCreateActivities =
    "CREATE TABLE IF NOT EXISTS activities (\n"
    "    id INTEGER PRIMARY KEY AUTOINCREMENT,\n"
    "    app_name TEXT NOT NULL,\n"
    "    bundle_id TEXT,\n"
    "    window_title TEXT,\n"
    "    url TEXT,\n"
    "    url_domain TEXT,\n"
    "    category_id INTEGER REFERENCES categories(id),\n"
    "    confidence REAL NOT NULL DEFAULT 1.0,\n"
    "    needs_approval INTEGER NOT NULL DEFAULT 0,\n"
    "    is_approved INTEGER NOT NULL DEFAULT 0,\n"
    "    start_time REAL NOT NULL,\n"
    "    end_time REAL,\n"
    "    duration_seconds INTEGER NOT NULL DEFAULT 0,\n"
    "    created_at REAL NOT NULL DEFAULT (unixepoch())\n"
    ");";

// idx_act_start serves every read by time range, idx_act_approval the pending count. idx_act_totals
// holds every column the totals of days, months and periods read, so those never visit the table:
// a heavy user's quarter then reads in half the time, for some 35 bytes a row.
const char* const kActivityIndexes[] = {
    "CREATE INDEX IF NOT EXISTS idx_act_start ON activities(start_time);",
    "CREATE INDEX IF NOT EXISTS idx_act_totals ON activities(start_time, duration_seconds, category_id, "
    "end_time, app_name, url_domain);",
    "CREATE INDEX IF NOT EXISTS idx_act_app ON activities(app_name);",
    "CREATE INDEX IF NOT EXISTS idx_act_approval ON activities(needs_approval, is_approved);",
};

// Kept for databases that have it; nothing reads or writes it.
const char* const kCreateApprovalQueue =
    "CREATE TABLE IF NOT EXISTS approval_queue (\n"
    "    id INTEGER PRIMARY KEY AUTOINCREMENT,\n"
    "    activity_id INTEGER NOT NULL REFERENCES activities(id),\n"
    "    suggested_category_id INTEGER REFERENCES categories(id),\n"
    "    created_at REAL NOT NULL DEFAULT (unixepoch()),\n"
    "    resolved_at REAL,\n"
    "    resolved_category_id INTEGER REFERENCES categories(id),\n"
    "    snoozed INTEGER NOT NULL DEFAULT 0\n"
    ");";

const char* const kCreateTodoItems =
    "CREATE TABLE IF NOT EXISTS todo_items (\n"
    "    id INTEGER PRIMARY KEY AUTOINCREMENT,\n"
    "    title TEXT NOT NULL,\n"
    "    pomodoro_count INTEGER NOT NULL DEFAULT 0,\n"
    "    is_completed INTEGER NOT NULL DEFAULT 0,\n"
    "    created_date TEXT NOT NULL,\n"
    "    sort_order INTEGER NOT NULL DEFAULT 0\n"
    ");";

const char* const kCreateTodoIndex = "CREATE INDEX IF NOT EXISTS idx_todo_date ON todo_items(created_date);";

const char* const kCreateDailyPomoCounts =
    "CREATE TABLE IF NOT EXISTS daily_pomo_counts (\n"
    "    date TEXT PRIMARY KEY,\n"
    "    count INTEGER NOT NULL DEFAULT 0\n"
    ");";

const char* const kCreateLearnedRules =
    "CREATE TABLE IF NOT EXISTS learned_rules (\n"
    "    id INTEGER PRIMARY KEY AUTOINCREMENT,\n"
    "    rule_type TEXT NOT NULL,\n"
    "    rule_key TEXT NOT NULL,\n"
    "    category_id INTEGER NOT NULL REFERENCES categories(id),\n"
    "    updated_at REAL NOT NULL DEFAULT (unixepoch()),\n"
    "    UNIQUE(rule_type, rule_key)\n"
    ");";

// Version 1: what earlier builds stored for each role. On Linux these identifiers came from nowhere
// else, so every row that carries one is a tool of that role.
struct RoleRename {
    std::string_view former;
    std::string_view role;
};
constexpr RoleRename kRoleRenames[] = {
    {"com.apple.Terminal", app_role::terminal},
    {"com.apple.mail", app_role::mail},
    {"com.apple.iCal", app_role::calendar},
    {"com.apple.reminders", app_role::tasks},
    {"com.apple.Notes", app_role::notes},
    {"com.apple.Music", app_role::music},
    {"com.apple.TV", app_role::video},
    {"com.apple.systempreferences", app_role::settings},
    {"com.apple.ActivityMonitor", app_role::monitor},
    {"com.apple.Console", app_role::logs},
    {"com.apple.finder", app_role::files},
    {"com.apple.Photos", app_role::photos},
};

const std::string_view kBundleIDRule = "bundle_id";

}  // namespace

void Database::migrate() {
    exec(kCreateCategories);
    exec(kCreateActivities);
    for (const char* index : kActivityIndexes)
        exec(index);
    exec(kCreateApprovalQueue);
    addColumnIfMissing("activities", "is_manual", "INTEGER NOT NULL DEFAULT 0");
    addColumnIfMissing("activities", "notes", "TEXT");
    exec(kCreateTodoItems);
    exec(kCreateTodoIndex);
    exec(kCreateDailyPomoCounts);
    exec(kCreateLearnedRules);

    const int version = query("PRAGMA user_version", nullptr, [](sqlite3_stmt* stmt) {
        return sqlite3_step(stmt) == SQLITE_ROW ? sqlite3_column_int(stmt, 0) : 0;
    });
    if (version < 1)
        adoptRoleIdentifiers();
}

// All or nothing, together with the version, so that an interrupted start runs the step again in
// full. One pass over each table through a temporary list rather than a pass per identifier.
// A "bundle_id" rule already stored under a role identifier can only come from a build that used
// them, so it is the later answer: it stays, and the former rule of the same role goes.
void Database::adoptRoleIdentifiers() {
    inTransaction([this] {
        exec("CREATE TEMP TABLE role_renames (former TEXT PRIMARY KEY, role TEXT NOT NULL)");
        for (const RoleRename& rename : kRoleRenames)
            run("INSERT INTO role_renames (former, role) VALUES (?, ?)", rename.former, rename.role);
        exec(
            "UPDATE activities SET bundle_id = (SELECT role FROM role_renames WHERE former = bundle_id)\n"
            "WHERE bundle_id IN (SELECT former FROM role_renames)");
        run("UPDATE OR IGNORE learned_rules SET rule_key = (SELECT role FROM role_renames WHERE former = "
            "rule_key)\nWHERE rule_type = ? AND rule_key IN (SELECT former FROM role_renames)",
            kBundleIDRule);
        run("DELETE FROM learned_rules WHERE rule_type = ? AND rule_key IN (SELECT former FROM role_renames)",
            kBundleIDRule);
        exec("DROP TABLE role_renames");
        exec("PRAGMA user_version = 1");
    });
}

// Does not look at the table first: the ALTER itself is the test, and its duplicate-column failure
// on an up-to-date database is the expected outcome.
void Database::addColumnIfMissing(const std::string& table, const std::string& column,
                                  const std::string& definition) {
    try {
        exec("ALTER TABLE " + table + " ADD COLUMN " + column + " " + definition);
    } catch (const DBError&) {
    }
}

// Seeds only a database without any category, so categories the user deleted never come back. One
// transaction over one prepared statement: a first launch stores its first row sooner.
void Database::seedCategories() {
    const std::int64_t count = query("SELECT COUNT(*) FROM categories", nullptr, [](sqlite3_stmt* stmt) {
        return sqlite3_step(stmt) == SQLITE_ROW ? sqlite3_column_int64(stmt, 0) : std::int64_t{0};
    });
    if (count != 0)
        return;
    inTransaction([this] {
        Statement insert(
            db_.get(),
            "INSERT OR IGNORE INTO categories (id, name, color_hex, icon, productivity, is_system, "
            "sort_order)\nVALUES (?, ?, ?, ?, ?, 1, ?);");
        if (!insert)
            throw DBError(DBError::Kind::prepareFailed, errMsg());
        for (const Category& category : Category::seeded()) {
            bindValues(insert.get(), category.id, category.name, category.colorHex, category.icon,
                       rawValue(category.productivity), category.sortOrder);
            if (sqlite3_step(insert.get()) != SQLITE_DONE)
                throw DBError(DBError::Kind::execFailed, errMsg());
            sqlite3_reset(insert.get());
        }
    });
}

}  // namespace larkspan
