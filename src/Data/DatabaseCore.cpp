// Opening the store and the helpers every statement runs on. The default file lies in the user's
// XDG data folder; the connection is configured for concurrent use from the store queue and the
// few callers that read or delete on their own thread.
#include <pwd.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <mutex>
#include <stdexcept>
#include <vector>

#include "Data/Database.h"
#include "Platform/PrivateFiles.h"

namespace larkspan {
namespace {

constexpr int kBusyTimeoutMilliseconds = 5000;

// What visit_row's first argument points at: the callback, and what it threw.
struct RowVisit {
    static constexpr const char* kType = "larkspan.RowVisit";
    const Database::RowValues& each;
    std::exception_ptr failure;
};

void visitRow(sqlite3_context* context, int count, sqlite3_value** values) {
    auto* visit =
        count > 0 ? static_cast<RowVisit*>(sqlite3_value_pointer(values[0], RowVisit::kType)) : nullptr;
    if (visit == nullptr) {
        sqlite3_result_error(context, "visit_row needs its visitor", -1);
        return;
    }
    try {
        visit->each(values + 1);
        sqlite3_result_null(context);
    } catch (...) {
        // Nothing may unwind through SQLite; the statement fails and visitRows rethrows.
        visit->failure = std::current_exception();
        sqlite3_result_error(context, "row visitor failed", -1);
    }
}

// SQLite must run in serialized mode before the first connection opens. The library's default is
// usually serialized already; sqlite3_config fails harmlessly when SQLite has been initialised by
// someone else, and openConnection checks the mode the connection actually got.
void requestSerializedMode() {
    static std::once_flag once;
    std::call_once(once, [] {
        if (sqlite3_threadsafe() != 0)
            sqlite3_config(SQLITE_CONFIG_SERIALIZED);
    });
}

// $XDG_DATA_HOME when set to an absolute path (the XDG rule: relative values are ignored), else
// ~/.local/share with the home folder from $HOME or the password database.
std::filesystem::path userDataFolder() {
    const char* xdg = std::getenv("XDG_DATA_HOME");
    if (xdg != nullptr && xdg[0] == '/')
        return xdg;
    std::string home;
    if (const char* env = std::getenv("HOME"); env != nullptr && env[0] != '\0') {
        home = env;
    } else {
        std::vector<char> buffer(16384);
        passwd entry{};
        passwd* found = nullptr;
        if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) == 0 && found != nullptr) {
            home = found->pw_dir;
        }
    }
    if (home.empty())
        throw std::runtime_error("no home folder for the data folder");
    return std::filesystem::path(home) / ".local" / "share";
}

// The program has no mode without a store: any failure to open, migrate or seed ends it here.
Database* openSharedDatabase() {
    std::string failure;
    try {
        const std::filesystem::path folder = userDataFolder() / "Larkspan";
        // SQLite gives the -wal and -shm files the database's own mode, so tightening it first
        // keeps all three private.
        restrictToOwner(folder, {"tracker.db", "tracker.db-wal", "tracker.db-shm"});
        std::filesystem::create_directories(folder);
        return new Database(folder / "tracker.db");
    } catch (const std::exception& error) {
        failure = error.what();
    }
    std::fprintf(stderr, "Database init failed: %s\n", failure.c_str());
    std::fflush(stderr);
    std::exit(EXIT_FAILURE);
}

}  // namespace

Database& Database::shared() {
    // Lives until the process ends, like the connection: nothing is torn down at exit.
    static Database* const instance = openSharedDatabase();
    return *instance;
}

Database::Database(const std::filesystem::path& path)
    : db_(openConnection(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE)) {
    prepareStore();
}

void Database::prepareStore() {
    // WAL with NORMAL sync: commits need no fsync of their own, and a crash loses at most the last
    // commits, never consistency. NORMAL comes first, so that a new file's switch to WAL waits for
    // fewer flushes. The cache is bounded at 4,000 KiB (negative values count KiB).
    exec("PRAGMA synchronous=NORMAL");
    exec("PRAGMA journal_mode=WAL");
    exec("PRAGMA foreign_keys=ON");
    exec("PRAGMA cache_size=-4000");
    // Direct only: no trigger or view of a tampered file can call back into the program.
    if (sqlite3_create_function_v2(db_.get(), "visit_row", -1, SQLITE_UTF8 | SQLITE_DIRECTONLY, nullptr,
                                   visitRow, nullptr, nullptr, nullptr) != SQLITE_OK)
        throw DBError(DBError::Kind::execFailed, sqlite3_errmsg(db_.get()));
    migrate();
    seedCategories();
}

Database::Connection Database::openConnection(const std::filesystem::path& path, int flags) {
    requestSerializedMode();
    sqlite3* handle = nullptr;
    const int result = sqlite3_open_v2(path.c_str(), &handle, flags, nullptr);
    Connection connection(handle);  // a handle comes back even on failure and must be closed
    if (result != SQLITE_OK) {
        throw DBError(DBError::Kind::openFailed,
                      handle != nullptr ? sqlite3_errmsg(handle) : "out of memory");
    }
    // Only serialized connections carry a mutex of their own.
    if (sqlite3_db_mutex(connection.get()) == nullptr) {
        throw DBError(DBError::Kind::openFailed, "SQLite is not in serialized threading mode");
    }
    // A backup tool or a sqlite3 shell may hold the write lock for a moment: wait for it rather than
    // fail the write. The waiting thread is the store queue's, with its caller blocked behind it, so
    // the bound keeps a main-thread write from stalling the interface for longer than this.
    sqlite3_busy_timeout(connection.get(), kBusyTimeoutMilliseconds);
    return connection;
}

void Database::reopenIfReadOnly() {
    queue_.sync([this] {
        if (sqlite3_db_readonly(db_.get(), "main") != 1)
            return;
        const std::filesystem::path path = sqlite3_db_filename(db_.get(), "main");
        try {
            // Never creates: a file gone missing stays an error rather than becoming an empty store.
            Connection writable = openConnection(path, SQLITE_OPEN_READWRITE);
            if (sqlite3_db_readonly(writable.get(), "main") != 0)
                return;
            db_ = std::move(writable);
            prepareStore();
        } catch (const DBError&) {
            // Still refused; the next failed write asks again.
        }
    });
}

bool Database::exec(const std::string& sql) {
    char* error = nullptr;
    const int result = sqlite3_exec(db_.get(), sql.c_str(), nullptr, nullptr, &error);
    if (result == SQLITE_OK)
        return true;
    const std::string text = error != nullptr ? error : "unknown";
    sqlite3_free(error);
    throw DBError(DBError::Kind::execFailed, text);
}

void Database::queryRows(const std::string& sql, const Binder& bind, const RowReader& each) {
    queue_.sync([&] {
        Statement statement(db_.get(), sql);
        if (!statement)
            return;
        if (bind)
            bind(statement.get());
        while (sqlite3_step(statement.get()) == SQLITE_ROW)
            each(statement.get());
    });
}

void Database::visitRows(const std::string& sql, const Binder& bind, const RowValues& each) {
    RowVisit visit{each, nullptr};
    queue_.sync([&] {
        Statement statement(db_.get(), sql);
        if (!statement)
            return;
        sqlite3_bind_pointer(statement.get(), 1, &visit, RowVisit::kType, nullptr);
        if (bind)
            bind(statement.get());
        while (sqlite3_step(statement.get()) == SQLITE_ROW) {
        }
    });
    if (visit.failure)
        std::rethrow_exception(visit.failure);
}

void Database::runOnQueue(const std::function<void()>& work) {
    std::optional<DBError::Kind> kind;
    std::string message;
    queue_.sync([&] {
        try {
            work();
        } catch (const DBError& error) {
            kind = error.kind();
            message = error.what();
        }
    });
    if (kind)
        throw DBError(*kind, message);
}

void Database::inTransaction(const std::function<void()>& work) {
    exec("BEGIN IMMEDIATE");
    try {
        work();
        exec("COMMIT");
    } catch (const DBError&) {
        try {
            exec("ROLLBACK");
        } catch (const DBError&) {
            // SQLite has already rolled back on its own; the original error is what counts.
        }
        throw;
    }
}

std::optional<std::string> Database::string(sqlite3_stmt* stmt, int column) {
    const char* text = columnText(stmt, column);
    if (text == nullptr)
        return std::nullopt;
    return std::string(text);
}

std::string Database::errMsg() const {
    return db_ ? sqlite3_errmsg(db_.get()) : "unknown";
}

}  // namespace larkspan
