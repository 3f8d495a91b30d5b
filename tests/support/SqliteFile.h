// A plain second connection to a test's database file, beside the store's own: to build an old
// schema by hand, to tamper with rows the store would never write, and to read back exactly what
// the store stored.
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <filesystem>
#include <string>

namespace larkspan::test {

class SqliteFile {
public:
    explicit SqliteFile(const std::filesystem::path& path);
    ~SqliteFile();
    SqliteFile(const SqliteFile&) = delete;
    SqliteFile& operator=(const SqliteFile&) = delete;

    // Runs the statements; throws std::runtime_error with SQLite's message on failure.
    void exec(const std::string& sql);
    // The first column of the first row: as bytes (NULs included; "<NULL>" for NULL, "<none>"
    // without a row), or as an integer (0 for NULL or no row).
    std::string text(const std::string& sql);
    std::int64_t integer(const std::string& sql);

private:
    sqlite3* db_ = nullptr;
};

}  // namespace larkspan::test
