// Records every SQL statement the store runs on its connection, from any thread, through SQLite's
// statement trace. Shows that some path touches the store not at all, or with exactly which
// statements. One trace per store at a time; it ends when destroyed.
#pragma once

#include <sqlite3.h>

#include <mutex>
#include <string>
#include <vector>

#include "Data/Database.h"

namespace larkspan::test {

class StatementTrace {
public:
    explicit StatementTrace(Database& db);
    ~StatementTrace();
    StatementTrace(const StatementTrace&) = delete;
    StatementTrace& operator=(const StatementTrace&) = delete;

    // The statements run since the trace began or since the last take(), oldest first; clears them.
    std::vector<std::string> take();

private:
    static int record(unsigned event, void* context, void* statement, void* sql);

    sqlite3* connection_ = nullptr;
    std::mutex mutex_;
    std::vector<std::string> statements_;
};

}  // namespace larkspan::test
