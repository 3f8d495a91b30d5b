// The statements on `learned_rules`: what the user has taught, one category per type and key, the
// latest answer winning.
#include "Data/Database.h"

namespace larkspan {

void Database::saveLearnedRule(const std::string& type, const std::string& key, std::int64_t categoryID) {
    runDiscardingError(
        "INSERT INTO learned_rules (rule_type, rule_key, category_id, updated_at)\nVALUES (?, ?, ?, "
        "unixepoch())\nON CONFLICT(rule_type, rule_key) DO UPDATE SET category_id=?, updated_at=unixepoch()",
        type, key, categoryID, categoryID);
}

std::vector<LearnedRule> Database::fetchLearnedRules() {
    std::vector<LearnedRule> rules;
    queryRows("SELECT rule_type, rule_key, category_id FROM learned_rules", nullptr, [&](sqlite3_stmt* stmt) {
        auto type = string(stmt, 0);
        auto key = string(stmt, 1);
        if (!type || !key)
            return;
        rules.push_back(LearnedRule{std::move(*type), std::move(*key), sqlite3_column_int64(stmt, 2)});
    });
    return rules;
}

}  // namespace larkspan
