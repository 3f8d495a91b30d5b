// One prepared statement of the store, and the typed reads and writes of its parameters and columns.
// Every statement of the store is prepared, used and finalized within one operation; holding it in a
// Statement makes the finalize happen on every path out of that operation, exceptions included.
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace larkspan {

class Statement {
public:
    // Prepares `sql` (read up to its first NUL) on `db`. On failure the statement is empty and the
    // connection holds SQLite's message.
    Statement(sqlite3* db, const std::string& sql) {
        sqlite3_prepare_v2(db, sql.c_str(), -1, &stmt_, nullptr);
    }
    ~Statement() { sqlite3_finalize(stmt_); }  // finalizing NULL is a no-op

    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    explicit operator bool() const { return stmt_ != nullptr; }
    sqlite3_stmt* get() const { return stmt_; }

private:
    sqlite3_stmt* stmt_ = nullptr;
};

// Text parameters are copied by SQLite (SQLITE_TRANSIENT) and read up to their first NUL.
inline void bindText(sqlite3_stmt* stmt, int index, const std::string& text) {
    sqlite3_bind_text(stmt, index, text.c_str(), -1, SQLITE_TRANSIENT);
}

inline void bindText(sqlite3_stmt* stmt, int index, const std::optional<std::string>& text) {
    if (text) {
        bindText(stmt, index, *text);
    } else {
        sqlite3_bind_null(stmt, index);
    }
}

inline void bindInt64(sqlite3_stmt* stmt, int index, std::optional<std::int64_t> value) {
    if (value) {
        sqlite3_bind_int64(stmt, index, *value);
    } else {
        sqlite3_bind_null(stmt, index);
    }
}

inline void bindDouble(sqlite3_stmt* stmt, int index, std::optional<double> value) {
    if (value) {
        sqlite3_bind_double(stmt, index, *value);
    } else {
        sqlite3_bind_null(stmt, index);
    }
}

inline void bindBool(sqlite3_stmt* stmt, int index, bool value) {
    sqlite3_bind_int(stmt, index, value ? 1 : 0);
}

// bindValue: one parameter by the type of its value. Texts as bindText, integers of 32 and 64 bits,
// floats (a NaN stores NULL), booleans as 1 or 0, an absent optional as NULL. Any other type, a
// string literal included, is refused at compile time rather than converted (a `const char*`
// would otherwise become a boolean).
template <typename T>
void bindValue(sqlite3_stmt* stmt, int index, const T& value) = delete;

inline void bindValue(sqlite3_stmt* stmt, int index, const std::string& text) {
    bindText(stmt, index, text);
}
inline void bindValue(sqlite3_stmt* stmt, int index, std::string_view text) {
    bindText(stmt, index, std::string(text));
}
inline void bindValue(sqlite3_stmt* stmt, int index, const std::optional<std::string>& text) {
    bindText(stmt, index, text);
}
inline void bindValue(sqlite3_stmt* stmt, int index, int value) {
    sqlite3_bind_int(stmt, index, value);
}
inline void bindValue(sqlite3_stmt* stmt, int index, std::int64_t value) {
    sqlite3_bind_int64(stmt, index, value);
}
inline void bindValue(sqlite3_stmt* stmt, int index, std::optional<std::int64_t> value) {
    bindInt64(stmt, index, value);
}
inline void bindValue(sqlite3_stmt* stmt, int index, double value) {
    sqlite3_bind_double(stmt, index, value);
}
inline void bindValue(sqlite3_stmt* stmt, int index, bool value) {
    bindBool(stmt, index, value);
}

// Binds `values` to parameters 1, 2, … in order.
template <typename... Values>
void bindValues(sqlite3_stmt* stmt, const Values&... values) {
    [[maybe_unused]] int index = 0;
    (bindValue(stmt, ++index, values), ...);
}

// The column's UTF-8 text up to its first NUL, valid until the next step; null for NULL.
inline const char* columnText(sqlite3_stmt* stmt, int column) {
    return reinterpret_cast<const char*>(sqlite3_column_text(stmt, column));
}

// A stored boolean is true only when it is exactly 1; 2, -1, NULL or text read false.
inline bool columnBool(sqlite3_stmt* stmt, int column) {
    return sqlite3_column_int64(stmt, column) == 1;
}

inline std::optional<std::int64_t> columnOptionalInt64(sqlite3_stmt* stmt, int column) {
    if (sqlite3_column_type(stmt, column) == SQLITE_NULL)
        return std::nullopt;
    return sqlite3_column_int64(stmt, column);
}

inline std::optional<double> columnOptionalDouble(sqlite3_stmt* stmt, int column) {
    if (sqlite3_column_type(stmt, column) == SQLITE_NULL)
        return std::nullopt;
    return sqlite3_column_double(stmt, column);
}

}  // namespace larkspan
