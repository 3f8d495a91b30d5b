// The classifier's table of web services, consulted when an activity has a domain. YouTube stands
// apart: its domain says nothing about the video, so the window title decides between Learning and
// Entertainment, and the answer always stays below the approval threshold so that the user is asked.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "Classification/CategoryEngine.h"

namespace larkspan {

// One group of the domain table: lower-case patterns that share a category and a confidence.
struct DomainRuleGroup {
    std::span<const std::string_view> patterns;
    std::int64_t categoryID;
    double confidence;
};

// The 14 groups in the order they are tried.
std::span<const DomainRuleGroup> domainRuleGroups();

// The video-title keywords, lower case; blanks inside an entry belong to it.
std::span<const std::string_view> educationalTitleKeywords();    // 36 entries
std::span<const std::string_view> entertainmentTitleKeywords();  // 16 entries

// The category of a domain, matched ASCII case-insensitively. YouTube (its main domain, mobile host,
// short-link domain or any subdomain) is judged by `title`. Any other domain takes the first group
// with a pattern that the domain ends with — a plain text ending, with no boundary at a dot. Absent
// when nothing matches, so that the caller goes on to the application rules.
std::optional<ClassificationResult> classifyByDomain(std::string_view domain,
                                                     const std::optional<std::string>& title);

}  // namespace larkspan
