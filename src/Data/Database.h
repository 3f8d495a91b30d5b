// The store: one SQLite database holding activities, categories, learned rules, the tasks of each
// day and the count of finished focus periods. One Database owns one connection for the life of the
// process (replaced only by reopenIfReadOnly); the application uses the instance of shared(), tests
// and tools open their own file.
//
// Threads. Every operation below puts its statement on the store queue ("com.larkspan.db") by a
// synchronous dispatch and waits, so operations from any thread run one at a time and a read after
// a write from the same thread sees it. Three paths run on the caller's thread beside the queue:
// query() (and so pendingApprovalCount()), and exec() and run() as called directly by the session
// and retention logic. SQLite runs in serialized mode, which makes that safe on the one connection.
// Callbacks given to query()/queryRows() must not call back into a queued operation.
//
// Failures. Operations that callers must know about throw DBError (marked "throws"); other writes
// swallow their error; reads give an empty list, an absent value or 0. Each statement commits by
// itself; the one exception is deleteCategory, whose three statements form one transaction.
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

#include "Classification/Category.h"
#include "Classification/LearnedRule.h"
#include "Data/Statement.h"
#include "Platform/Clock.h"
#include "Platform/SerialQueue.h"
#include "Tracking/ActivityRecord.h"

namespace larkspan {

// The store's error: its kind and SQLite's own message (what() gives the same text).
class DBError : public std::runtime_error {
public:
    enum class Kind { openFailed, execFailed, prepareFailed };

    DBError(Kind kind, const std::string& message) : std::runtime_error(message), kind_(kind) {}
    Kind kind() const { return kind_; }

private:
    Kind kind_;
};

// Totals of one local day, computed from the stored rows.
struct DaySummary {
    Date date = 0;                                    // as given, not moved to midnight
    std::int64_t totalSeconds = 0;                    // every positive duration of the day
    std::int64_t productiveSeconds = 0;               // the part in a productive category
    std::map<std::int64_t, std::int64_t> byCategory;  // category id → seconds; no category counts as 21

    double productivityRatio() const {
        return totalSeconds > 0 ? static_cast<double>(productiveSeconds) / static_cast<double>(totalSeconds)
                                : 0;
    }
    bool operator==(const DaySummary&) const = default;
};

// Seconds spent on one web domain over a period.
struct DomainTotal {
    std::string domain;
    std::int64_t seconds = 0;
    bool operator==(const DomainTotal&) const = default;
};

// The rows of a period as its totals read them.
struct PeriodActivities {
    std::vector<ActivityTotal> activities;  // oldest first
    std::vector<DomainTotal> domains;       // longest first, ties by name; never NULL or empty domains
};

// A task of one day's list.
struct TodoItem {
    std::int64_t id = 0;
    std::string title;
    int pomodoroCount = 0;  // focus periods credited to the task
    bool isCompleted = false;
    std::string createdDate;  // local day, "yyyy-MM-dd"
    int sortOrder = 0;
    bool operator==(const TodoItem&) const = default;
};

class Database {
public:
    using Binder = std::function<void(sqlite3_stmt*)>;
    using RowReader = std::function<void(sqlite3_stmt*)>;
    using RowValues = std::function<void(sqlite3_value** values)>;

    // The application's store, $XDG_DATA_HOME/Larkspan/tracker.db (by default under
    // ~/.local/share), folder created when missing. Opened, migrated and seeded on first use; if
    // that fails the process ends with "Database init failed: " and the error's text on standard
    // error. Never destroyed.
    static Database& shared();

    // Opens (creating when missing) the database at `path`, sets the pragmas, migrates and seeds.
    // Throws DBError when any of that fails.
    explicit Database(const std::filesystem::path& path);
    ~Database() = default;
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    // Main thread, like the other callers off the queue. A file that was write-protected when the
    // connection opened keeps that connection read-only for good; when the file takes writes again,
    // this swaps in a fresh read-write connection to it (configured and migrated as at opening).
    // Does nothing while the connection can write or the file still refuses writes.
    void reopenIfReadOnly();

    // --- Low-level helpers -------------------------------------------------------------------

    // Runs one or more statements with sqlite3_exec on the caller's thread. Returns true; throws
    // execFailed with SQLite's text ("unknown" when it gives none).
    bool exec(const std::string& sql);

    // Runs the one statement `sql` on the caller's thread with `values` bound to its parameters
    // in order (see bindValue). Throws prepareFailed, or execFailed with SQLite's text. Every value
    // a statement carries is bound this way, never written into its text.
    template <typename... Values>
    void run(const std::string& sql, const Values&... values) {
        Statement statement(db_.get(), sql);
        if (!statement)
            throw DBError(DBError::Kind::prepareFailed, errMsg());
        bindValues(statement.get(), values...);
        if (sqlite3_step(statement.get()) != SQLITE_DONE)
            throw DBError(DBError::Kind::execFailed, errMsg());
    }

    // Prepares `sql` on the caller's thread, calls `bind` (may be empty), returns what `map`
    // returns; `map` steps the statement itself. Throws prepareFailed when `sql` does not prepare.
    template <typename Map>
    std::invoke_result_t<Map&, sqlite3_stmt*> query(const std::string& sql, const Binder& bind, Map&& map) {
        Statement statement(db_.get(), sql);
        if (!statement)
            throw DBError(DBError::Kind::prepareFailed, errMsg());
        if (bind)
            bind(statement.get());
        return map(statement.get());
    }

    // On the queue: prepares `sql`, calls `bind` (may be empty), then `each` once per row. A
    // statement that fails to prepare, or an error while stepping, simply ends the rows.
    void queryRows(const std::string& sql, const Binder& bind, const RowReader& each);

    // On the queue: runs `sql`, an aggregate that hands each row's values to `each` through
    // "visit_row(?1, ...)", as in "SELECT count(visit_row(?1, a, b)) FROM t WHERE c >= ?2". ?1 is
    // bound here, `bind` binds from ?2. SQLite then steps once for all rows, and no column call (each
    // of which takes the connection's mutex) is made per row: for months of rows, half the read's
    // time. The values are valid during the call only; rows come in the order SQLite visits them.
    // A statement that fails to prepare gives no rows; an exception from `each` ends the rows and
    // is rethrown.
    void visitRows(const std::string& sql, const Binder& bind, const RowValues& each);

    // The column as UTF-8 text up to its first NUL; absent for NULL.
    static std::optional<std::string> string(sqlite3_stmt* stmt, int column);

    // --- Activities ------------------------------------------------------------------------

    // throws: prepareFailed, or execFailed when the row is refused. Returns the new row id. The
    // record's id is ignored; its duration is stored clamped to 32 signed bits.
    std::int64_t insertActivity(const ActivityRecord& record);
    void updateActivityEnd(std::int64_t id, Date endTime, std::int64_t duration);
    // Also clears needs_approval, whatever `isApproved` is.
    void updateActivityCategory(std::int64_t id, std::int64_t categoryID, bool isApproved);
    // Stores the whole seconds from start to end, 0 when the end lies before the start.
    void updateActivityTimes(std::int64_t id, Date startTime, Date endTime);
    void updateActivityNotes(std::int64_t id, const std::string& notes);
    void deleteActivity(std::int64_t id);

    // Activities starting within [from, to], both bounds inclusive, oldest first.
    std::vector<ActivityRecord> fetchActivities(Date from, Date to);
    std::optional<ActivityRecord> fetchActivity(std::int64_t id);
    // Pending (needs approval, not approved, at least 30 seconds), newest first.
    std::vector<ActivityRecord> fetchPendingApprovals(int limit = 10);
    // The number of pending activities, counted on the caller's thread; 0 on any failure.
    std::int64_t pendingApprovalCount();
    // Approved categories by number of rows over the whole history, most used first.
    std::vector<std::int64_t> fetchTopCategoryIDs(int limit = 6);

    // --- Learned rules ---------------------------------------------------------------------

    // Inserts the rule, or gives an existing rule of the same type and key the new category.
    void saveLearnedRule(const std::string& type, const std::string& key, std::int64_t categoryID);
    std::vector<LearnedRule> fetchLearnedRules();

    // --- Categories ------------------------------------------------------------------------

    // By sort order. Missing texts read as their column defaults, unknown productivity as neutral.
    std::vector<Category> fetchCategories();
    // throws execFailed (a name already taken, for one). id and isSystem are ignored.
    void insertCategory(const Category& category);
    // throws execFailed. Writes name, colour, icon and productivity only.
    void updateCategory(const Category& category);
    // throws execFailed. Deletes the category's learned rules, moves its activities to 21 ("Other")
    // and deletes it, all or nothing. Id 21 is never deleted and is no error.
    void deleteCategory(std::int64_t id);

    // --- Summaries -------------------------------------------------------------------------

    // Totals of the local day of `date`; each activity counts whole on the day it starts.
    DaySummary daySummary(Date date);
    // One summary per day of the month, in order; empty when `month` is not 1 to 12.
    std::vector<DaySummary> monthSummaries(int year, int month);
    // The activities starting within [from, to] that last longer than `longerThan` seconds, oldest
    // first, and the seconds of every web domain over all the rows of [from, to], short ones included.
    // One pass over the rows, which for a heavy user's quarter is most of the analytics page's time.
    PeriodActivities fetchPeriodActivities(Date from, Date to, std::int64_t longerThan);

    // --- Tasks and focus counts ------------------------------------------------------------
    // "Today" is the local day of `now`, which the caller takes from its Clock.

    static std::string todayDateString(Date now);
    std::vector<TodoItem> fetchTodayTodos(Date now);
    // throws: prepareFailed or execFailed. Returns the new row id.
    std::int64_t insertTodo(const std::string& title, Date now);
    void updateTodoTitle(std::int64_t id, const std::string& title);
    void toggleTodoComplete(std::int64_t id);
    void incrementTodoPomo(std::int64_t id);
    void reorderTodo(std::int64_t id, int sortOrder);
    void deleteTodo(std::int64_t id);
    // Deletes today's completed tasks; earlier days keep theirs.
    void deleteCompletedTodos(Date now);
    void incrementDailyPomoCount(Date now);
    // Day text → count for the local days of `from` to `to`, both inclusive; days without a row
    // have no key.
    std::map<std::string, int> fetchDailyPomoCounts(Date from, Date to);

private:
    struct ConnectionCloser {
        void operator()(sqlite3* db) const { sqlite3_close(db); }
    };

    using Connection = std::unique_ptr<sqlite3, ConnectionCloser>;

    // Opens `path` with SQLite's open `flags`, serialized and with the busy timeout. Throws openFailed.
    static Connection openConnection(const std::filesystem::path& path, int flags);
    // The pragmas, the schema and the first categories, on the connection just opened.
    void prepareStore();
    void migrate();
    void addColumnIfMissing(const std::string& table, const std::string& column,
                            const std::string& definition);
    void seedCategories();
    void adoptRoleIdentifiers();

    // Runs `work` on the queue and waits. A DBError it throws is thrown again on the caller's
    // thread as a fresh copy, so no exception object is shared between the two threads.
    void runOnQueue(const std::function<void()>& work);
    // Runs `work` in one transaction on the caller's thread: committed when it returns, rolled back
    // when it throws DBError, which is thrown on.
    void inTransaction(const std::function<void()>& work);
    // On the queue: runs `sql` with `values` bound and discards any error.
    template <typename... Values>
    void runDiscardingError(const std::string& sql, const Values&... values) {
        queue_.sync([&] {
            try {
                run(sql, values...);
            } catch (const DBError&) {
                // Writes of this kind fail silently by design; the row keeps its old state.
            }
        });
    }
    // SQLite's message for the connection's last failure; "unknown" without a connection.
    std::string errMsg() const;

    // Declared before the queue so that the queue's worker has stopped when the connection closes.
    Connection db_;
    SerialQueue queue_{"com.larkspan.db"};
};

}  // namespace larkspan
