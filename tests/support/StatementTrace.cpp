#include "StatementTrace.h"

#include <utility>

namespace larkspan::test {

StatementTrace::StatementTrace(Database& db) {
    // The store keeps its connection to itself; any statement it prepares leads back to it.
    connection_ = db.query("SELECT 1", nullptr, [](sqlite3_stmt* stmt) { return sqlite3_db_handle(stmt); });
    sqlite3_trace_v2(connection_, SQLITE_TRACE_STMT, &StatementTrace::record, this);
}

StatementTrace::~StatementTrace() {
    sqlite3_trace_v2(connection_, 0, nullptr, nullptr);
}

std::vector<std::string> StatementTrace::take() {
    std::lock_guard lock(mutex_);
    return std::exchange(statements_, {});
}

int StatementTrace::record(unsigned event, void* context, void* statement, void* /*sql*/) {
    if (event != SQLITE_TRACE_STMT)
        return 0;
    auto* self = static_cast<StatementTrace*>(context);
    const char* text = sqlite3_sql(static_cast<sqlite3_stmt*>(statement));
    std::lock_guard lock(self->mutex_);
    self->statements_.emplace_back(text != nullptr ? text : "");
    return 0;
}

}  // namespace larkspan::test
