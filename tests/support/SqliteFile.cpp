#include "SqliteFile.h"

#include <stdexcept>

namespace larkspan::test {
namespace {

struct Prepared {
    sqlite3_stmt* stmt = nullptr;
    Prepared(sqlite3* db, const std::string& sql) {
        if (sqlite3_prepare_v2(db, sql.c_str(), -1, &stmt, nullptr) != SQLITE_OK) {
            throw std::runtime_error(sqlite3_errmsg(db));
        }
    }
    ~Prepared() { sqlite3_finalize(stmt); }
};

}  // namespace

SqliteFile::SqliteFile(const std::filesystem::path& path) {
    if (sqlite3_open(path.c_str(), &db_) != SQLITE_OK) {
        const std::string message = sqlite3_errmsg(db_);
        sqlite3_close(db_);
        throw std::runtime_error(message);
    }
    sqlite3_busy_timeout(db_, 5000);
}

SqliteFile::~SqliteFile() {
    sqlite3_close(db_);
}

void SqliteFile::exec(const std::string& sql) {
    char* error = nullptr;
    if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &error) != SQLITE_OK) {
        const std::string message = error != nullptr ? error : "unknown";
        sqlite3_free(error);
        throw std::runtime_error(message + " in: " + sql);
    }
}

std::string SqliteFile::text(const std::string& sql) {
    Prepared query(db_, sql);
    if (sqlite3_step(query.stmt) != SQLITE_ROW)
        return "<none>";
    if (sqlite3_column_type(query.stmt, 0) == SQLITE_NULL)
        return "<NULL>";
    const auto* bytes = static_cast<const char*>(sqlite3_column_blob(query.stmt, 0));
    return std::string(bytes == nullptr ? "" : bytes,
                       static_cast<std::size_t>(sqlite3_column_bytes(query.stmt, 0)));
}

std::int64_t SqliteFile::integer(const std::string& sql) {
    Prepared query(db_, sql);
    return sqlite3_step(query.stmt) == SQLITE_ROW ? sqlite3_column_int64(query.stmt, 0) : 0;
}

}  // namespace larkspan::test
