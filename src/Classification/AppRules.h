// The classifier's application rules, consulted when the domain gave no answer: the bundle id against
// a table of prefixes, the application name against keyword groups, and last the window title, which
// can show a source file.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "Classification/CategoryEngine.h"

namespace larkspan {

// One row of the bundle table: a case-sensitive prefix of the bundle id.
struct BundleRule {
    std::string_view prefix;
    std::int64_t categoryID;
    double confidence;
};

// One group of the application-name table: lower-case keywords found anywhere in the name.
struct AppNameRuleGroup {
    std::span<const std::string_view> keywords;
    std::int64_t categoryID;
    double confidence;
};

std::span<const BundleRule> bundleRules();                 // 55 rows, in the order tried
std::span<const AppNameRuleGroup> appNameRuleGroups();     // 12 groups, in the order tried
std::span<const std::string_view> sourceFileExtensions();  // 21 entries, each with its leading "."

// The first row whose prefix `bundleID` begins with (case-sensitive), else the result of the role
// identifier (Platform/AppRoles.h) it begins with, or absent.
std::optional<ClassificationResult> classifyByBundleID(std::string_view bundleID);

// The first group with a keyword anywhere in `appName`, ASCII case-insensitively, or absent.
std::optional<ClassificationResult> classifyByAppName(std::string_view appName);

// Coding when `title` holds a source-file extension anywhere (ASCII case-insensitively, with no
// word boundary), else absent. The application name takes no part in the result.
std::optional<ClassificationResult> classifyByWindowTitle(std::string_view title, std::string_view appName);

}  // namespace larkspan
