// Decides which category an activity belongs to, and how sure that is. A deterministic function of
// its arguments and the learned rules it holds: no clock, no file, no platform.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace larkspan {

inline constexpr double kApprovalThreshold = 0.65;

struct ClassificationResult {
    std::int64_t categoryID = 0;
    double confidence = 0;  // 0 to 1

    bool needsApproval() const { return confidence < kApprovalThreshold; }
    bool operator==(const ClassificationResult&) const = default;
};

// One row of `learned_rules`. Types: "domain", "bundle_id", "app_name", "url", "title".
struct LearnedRule {
    std::string ruleType;
    std::string ruleKey;
    std::int64_t categoryID = 0;
    bool operator==(const LearnedRule&) const = default;
};

class CategoryEngine {
public:
    // As fetched from the store, in the store's order. Written by the owner; the engine only reads.
    std::vector<LearnedRule> learnedRules;

    ClassificationResult classify(std::string_view appName, const std::optional<std::string>& bundleID,
                                  const std::optional<std::string>& windowTitle, const std::optional<std::string>& url,
                                  const std::optional<std::string>& domain) const;

    // Services judged page by page rather than as a whole domain: bare main domains, lower case.
    static const std::unordered_set<std::string>& mixedContentDomains();
};

}  // namespace larkspan
