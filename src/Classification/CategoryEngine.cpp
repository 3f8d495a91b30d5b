// The classification pipeline: learned rules first, then the domain and application tables, then
// the catch-all. Learned rules number in the tens to a few hundred and are scanned in order; the
// store keeps keys of one type unique, so the first match is the only one.
#include "Classification/CategoryEngine.h"

#include <array>

#include "Classification/AppRules.h"
#include "Classification/Category.h"
#include "Classification/DomainRules.h"
#include "Platform/AsciiLower.h"
#include "Platform/OptionalText.h"

namespace larkspan {

namespace {

constexpr std::array<std::string_view, 8> kMixedContentDomains = {
    "youtube.com",   "reddit.com", "twitter.com",  "x.com",
    "instagram.com", "tiktok.com", "facebook.com", "threads.com",
};

constexpr double kLearnedConfidence = 0.99;
constexpr ClassificationResult kFallback{category_id::other, 0.3};

bool isMixedContentDomain(std::string_view domain) {
    for (std::string_view mixed : kMixedContentDomains) {
        if (equalsAsciiLower(domain, mixed))
            return true;
    }
    return false;
}

std::optional<ClassificationResult> learned(const std::vector<LearnedRule>& rules, std::string_view type,
                                            std::string_view key) {
    for (const LearnedRule& rule : rules) {
        if (rule.ruleType == type && rule.ruleKey == key) {
            return ClassificationResult{rule.categoryID, kLearnedConfidence};
        }
    }
    return std::nullopt;
}

}  // namespace

const std::unordered_set<std::string>& CategoryEngine::mixedContentDomains() {
    static const std::unordered_set<std::string> domains = [] {
        std::unordered_set<std::string> set;
        for (std::string_view domain : kMixedContentDomains)
            set.emplace(domain);
        return set;
    }();
    return domains;
}

std::optional<ClassificationResult> CategoryEngine::learnedResult(
    std::string_view appName, const std::optional<std::string>& bundleID,
    const std::optional<std::string>& windowTitle, const std::optional<std::string>& url,
    const std::optional<std::string>& domain) const {
    if (domain && isMixedContentDomain(*domain)) {
        // A mixed service is judged page by page: only what identifies the page counts.
        if (hasText(url)) {
            if (auto hit = learned(learnedRules, "url", *url))
                return hit;
        }
        if (hasText(windowTitle))
            return learned(learnedRules, "title", *windowTitle);
        return std::nullopt;
    }
    if (hasText(domain)) {
        if (auto hit = learned(learnedRules, "domain", *domain))
            return hit;
    }
    if (hasText(bundleID)) {
        if (auto hit = learned(learnedRules, "bundle_id", *bundleID))
            return hit;
    }
    return learned(learnedRules, "app_name", appName);
}

ClassificationResult CategoryEngine::classify(std::string_view appName,
                                              const std::optional<std::string>& bundleID,
                                              const std::optional<std::string>& windowTitle,
                                              const std::optional<std::string>& url,
                                              const std::optional<std::string>& domain) const {
    if (auto hit = learnedResult(appName, bundleID, windowTitle, url, domain))
        return *hit;
    if (hasText(domain)) {
        if (auto hit = classifyByDomain(*domain, windowTitle))
            return *hit;
    }
    if (bundleID) {
        if (auto hit = classifyByBundleID(*bundleID))
            return *hit;
    }
    if (auto hit = classifyByAppName(appName))
        return *hit;
    if (windowTitle) {
        if (auto hit = classifyByWindowTitle(*windowTitle, appName))
            return *hit;
    }
    return kFallback;
}

}  // namespace larkspan
