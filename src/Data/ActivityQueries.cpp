// The statements on `activities`: the insert of a new session, its heartbeats and corrections, and
// the reads by time range, by id and by pending state. One reader maps every selected row, so all
// reads agree on NULLs and booleans.
#include <algorithm>
#include <limits>

#include "Data/Database.h"

namespace larkspan {
namespace {

const std::string kActivityColumns =
    "SELECT id, app_name, bundle_id, window_title, url, url_domain, category_id,\n"
    "       confidence, needs_approval, is_approved, start_time, end_time, duration_seconds,\n"
    "       COALESCE(is_manual,0), notes\n"
    "FROM activities";

const char* const kInsertActivity =
    "INSERT INTO activities\n"
    "(app_name, bundle_id, window_title, url, url_domain, category_id, confidence,\n"
    " needs_approval, is_approved, start_time, end_time, duration_seconds, is_manual, notes)\n"
    "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)";

// Reads a row selected with kActivityColumns into `record`, fresh from its default constructor.
// A range read fills tens of thousands of rows, so texts go straight into their fields with no
// temporary. duration_seconds is read through the 32-bit column read, as it is written.
void readActivity(sqlite3_stmt* stmt, ActivityRecord& record) {
    const auto readText = [stmt](int column, std::optional<std::string>& field) {
        if (const char* text = columnText(stmt, column))
            field.emplace(text);
    };
    record.id = sqlite3_column_int64(stmt, 0);
    if (const char* name = columnText(stmt, 1))
        record.appName = name;
    readText(2, record.bundleID);
    readText(3, record.windowTitle);
    readText(4, record.url);
    readText(5, record.urlDomain);
    record.categoryID = columnOptionalInt64(stmt, 6);
    record.confidence = sqlite3_column_double(stmt, 7);
    record.needsApproval = columnBool(stmt, 8);
    record.isApproved = columnBool(stmt, 9);
    record.startTime = sqlite3_column_double(stmt, 10);
    record.endTime = columnOptionalDouble(stmt, 11);
    record.durationSeconds = sqlite3_column_int(stmt, 12);
    record.isManual = columnBool(stmt, 13);
    readText(14, record.notes);
}

int clampToInt32(std::int64_t value) {
    return static_cast<int>(
        std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

}  // namespace

std::int64_t Database::insertActivity(const ActivityRecord& record) {
    std::int64_t rowID = 0;
    runOnQueue([&] {
        Statement statement(db_.get(), kInsertActivity);
        if (!statement)
            throw DBError(DBError::Kind::prepareFailed, errMsg());
        sqlite3_stmt* stmt = statement.get();
        bindText(stmt, 1, record.appName);
        bindText(stmt, 2, record.bundleID);
        bindText(stmt, 3, record.windowTitle);
        bindText(stmt, 4, record.url);
        bindText(stmt, 5, record.urlDomain);
        bindInt64(stmt, 6, record.categoryID);
        sqlite3_bind_double(stmt, 7, record.confidence);
        bindBool(stmt, 8, record.needsApproval);
        bindBool(stmt, 9, record.isApproved);
        sqlite3_bind_double(stmt, 10, record.startTime);
        bindDouble(stmt, 11, record.endTime);
        sqlite3_bind_int(stmt, 12, clampToInt32(record.durationSeconds));
        bindBool(stmt, 13, record.isManual);
        bindText(stmt, 14, record.notes);
        if (sqlite3_step(stmt) != SQLITE_DONE)
            throw DBError(DBError::Kind::execFailed, errMsg());
        rowID = sqlite3_last_insert_rowid(db_.get());
    });
    return rowID;
}

void Database::updateActivityEnd(std::int64_t id, Date endTime, std::int64_t duration) {
    runDiscardingError("UPDATE activities SET end_time=?, duration_seconds=? WHERE id=?", endTime, duration,
                       id);
}

void Database::updateActivityCategory(std::int64_t id, std::int64_t categoryID, bool isApproved) {
    runDiscardingError("UPDATE activities SET category_id=?, is_approved=?, needs_approval=0 WHERE id=?",
                       categoryID, isApproved, id);
}

void Database::updateActivityTimes(std::int64_t id, Date startTime, Date endTime) {
    const std::int64_t duration = std::max<std::int64_t>(0, wholeSecondsBetween(startTime, endTime));
    runDiscardingError("UPDATE activities SET start_time=?,\nend_time=?, duration_seconds=? WHERE id=?",
                       startTime, endTime, duration, id);
}

void Database::updateActivityNotes(std::int64_t id, const std::string& notes) {
    runDiscardingError("UPDATE activities SET notes=? WHERE id=?", notes, id);
}

void Database::deleteActivity(std::int64_t id) {
    runDiscardingError("DELETE FROM activities WHERE id=?", id);
}

std::vector<ActivityRecord> Database::fetchActivities(Date from, Date to) {
    std::vector<ActivityRecord> activities;
    queryRows(
        kActivityColumns + "\nWHERE start_time >= ? AND start_time <= ?\nORDER BY start_time ASC",
        [&](sqlite3_stmt* stmt) {
            sqlite3_bind_double(stmt, 1, from);
            sqlite3_bind_double(stmt, 2, to);
        },
        [&](sqlite3_stmt* stmt) { readActivity(stmt, activities.emplace_back()); });
    return activities;
}

std::optional<ActivityRecord> Database::fetchActivity(std::int64_t id) {
    std::optional<ActivityRecord> activity;
    queryRows(
        kActivityColumns + " WHERE id=? LIMIT 1", [&](sqlite3_stmt* stmt) { bindValues(stmt, id); },
        [&](sqlite3_stmt* stmt) { readActivity(stmt, activity.emplace()); });
    return activity;
}

std::vector<ActivityRecord> Database::fetchPendingApprovals(int limit) {
    std::vector<ActivityRecord> activities;
    queryRows(
        kActivityColumns +
            "\nWHERE needs_approval=1 AND is_approved=0 AND duration_seconds >= 30\n"
            "ORDER BY start_time DESC LIMIT ?",
        [&](sqlite3_stmt* stmt) { bindValues(stmt, limit); },
        [&](sqlite3_stmt* stmt) { readActivity(stmt, activities.emplace_back()); });
    return activities;
}

std::int64_t Database::pendingApprovalCount() {
    try {
        return query(
            "SELECT COUNT(*) FROM activities WHERE needs_approval=1 AND is_approved=0 AND "
            "duration_seconds >= 30",
            nullptr, [](sqlite3_stmt* stmt) {
                return sqlite3_step(stmt) == SQLITE_ROW ? sqlite3_column_int64(stmt, 0) : std::int64_t{0};
            });
    } catch (const DBError&) {
        return 0;
    }
}

std::vector<std::int64_t> Database::fetchTopCategoryIDs(int limit) {
    std::vector<std::int64_t> ids;
    queryRows(
        "SELECT category_id, COUNT(*) AS cnt\nFROM activities\nWHERE is_approved=1 AND category_id IS NOT "
        "NULL\n"
        "GROUP BY category_id\nORDER BY cnt DESC\nLIMIT ?",
        [&](sqlite3_stmt* stmt) { bindValues(stmt, limit); },
        [&](sqlite3_stmt* stmt) { ids.push_back(sqlite3_column_int64(stmt, 0)); });
    return ids;
}

}  // namespace larkspan
