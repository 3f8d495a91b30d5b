// The statements on `learned_rules`: what the user has taught, one category per type and key, the
// latest answer winning.
#include "Data/Database.h"
#include "Data/SqlText.h"

namespace larkspan {

// The type comes from a fixed vocabulary ("domain", "bundle_id", …); it is escaped like the key all
// the same, which leaves those words unchanged and keeps any other text inside its quotes.
void Database::saveLearnedRule(const std::string& type, const std::string& key, std::int64_t categoryID) {
    const std::string category = sqlNumber(categoryID);
    execDiscardingError(
        "INSERT INTO learned_rules (rule_type, rule_key, category_id, updated_at)\nVALUES ('" +
        escapeQuotes(type) + "', '" + escapeQuotes(key) + "', " + category +
        ", unixepoch())\nON CONFLICT(rule_type, rule_key) DO UPDATE SET category_id=" + category +
        ", updated_at=unixepoch()");
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
