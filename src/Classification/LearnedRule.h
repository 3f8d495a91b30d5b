// A rule the user taught by answering: the store keeps them, the engine reads them.
#pragma once

#include <cstdint>
#include <string>

namespace larkspan {

// One row of `learned_rules`. Types: "domain", "bundle_id", "app_name", "url", "title".
struct LearnedRule {
    std::string ruleType;
    std::string ruleKey;
    std::int64_t categoryID = 0;
    bool operator==(const LearnedRule&) const = default;
};

}  // namespace larkspan
