// Decides which category an activity belongs to, and how sure that is. A deterministic function of
// its arguments and the learned rules it holds: no clock, no file, no platform.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "Classification/LearnedRule.h"

namespace larkspan {

// A result below this confidence makes the activity one the user is asked about.
inline constexpr double kApprovalThreshold = 0.65;

struct ClassificationResult {
    std::int64_t categoryID = 0;
    double confidence = 0;  // 0 to 1

    bool needsApproval() const { return confidence < kApprovalThreshold; }
    bool operator==(const ClassificationResult&) const = default;
};

class CategoryEngine {
public:
    virtual ~CategoryEngine() = default;

    // As fetched from the store, in the store's order. Written by the owner; the engine only reads.
    std::vector<LearnedRule> learnedRules;

    // The category of an activity, never absent. Tried in order, the first answer wins:
    //   1. mixed test: `domain`, lower-cased, is one of mixedContentDomains() (exactly, no subdomain);
    //   2. not mixed: learned "domain", then "bundle_id", then "app_name" rule  -> (rule, 0.99);
    //   3. mixed: learned "url", then "title" rule                               -> (rule, 0.99);
    //   4. domain table; 5. bundle table; 6. application-name table; 7. window-title extensions;
    //   8. (Other, 0.3), which needs approval.
    // Learned keys match exactly and case-sensitively. An absent or empty domain, bundle id, address or
    // title skips its learned step; the name has no such test. Virtual so that a test can count
    // the calls.
    virtual ClassificationResult classify(std::string_view appName,
                                          const std::optional<std::string>& bundleID,
                                          const std::optional<std::string>& windowTitle,
                                          const std::optional<std::string>& url,
                                          const std::optional<std::string>& domain) const;

    // Services judged page by page rather than as a whole domain: bare main domains, lower case.
    static const std::unordered_set<std::string>& mixedContentDomains();

private:
    // Steps 1 to 3: the learned rule that decides the activity, if any.
    std::optional<ClassificationResult> learnedResult(std::string_view appName,
                                                      const std::optional<std::string>& bundleID,
                                                      const std::optional<std::string>& windowTitle,
                                                      const std::optional<std::string>& url,
                                                      const std::optional<std::string>& domain) const;
};

// Whether a video title reads as learning: more entries of the educational keyword list than of
// the entertainment list occur in it (ASCII case-insensitive substrings, each entry counted once).
bool isEducationalVideoTitle(std::string_view title);

}  // namespace larkspan
