#include "Classification/AppRules.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "ClassificationPrinters.h"
#include "Platform/AppRoles.h"
#include "TextCase.h"

namespace larkspan {
namespace {

using std::nullopt;
using namespace test;
using R = ClassificationResult;

// The tables' shape, and that each row is reached as its own prefix, case-sensitively.
TEST(AppRules, BundleRowsArePrefixesTriedInOrderCaseSensitive) {
    ASSERT_EQ(bundleRules().size(), 55u);
    for (const BundleRule& row : bundleRules()) {
        const std::string prefix(row.prefix);
        SCOPED_TRACE(prefix);
        const R result{row.categoryID, row.confidence};
        EXPECT_EQ(classifyByBundleID(prefix), result);
        EXPECT_EQ(classifyByBundleID(prefix + "Helper.2"), result);
        EXPECT_EQ(classifyByBundleID(prefix.substr(0, prefix.size() - 1)), nullopt);
        EXPECT_EQ(classifyByBundleID(upper(prefix)), nullopt);
        if (lower(prefix) != prefix) {
            EXPECT_EQ(classifyByBundleID(lower(prefix)), nullopt);
        }
        EXPECT_EQ(classifyByBundleID("x" + prefix), nullopt);
    }
    EXPECT_EQ(classifyByBundleID(""), nullopt);
}

TEST(AppRules, RoleIdentifiersClassifyLikeTheBundleRowOfTheirRole) {
    // clang-format off
    const std::pair<std::string_view, std::string_view> roles[] = {
        {app_role::terminal, "com.apple.Terminal"}, {app_role::mail, "com.apple.mail"},
        {app_role::calendar, "com.apple.iCal"},     {app_role::tasks, "com.apple.reminders"},
        {app_role::notes, "com.apple.Notes"},       {app_role::music, "com.apple.Music"},
        {app_role::video, "com.apple.TV"},          {app_role::settings, "com.apple.systempreferences"},
        {app_role::monitor, "com.apple.ActivityMonitor"}, {app_role::logs, "com.apple.Console"},
        {app_role::files, "com.apple.finder"},      {app_role::photos, "com.apple.Photos"},
    };
    // clang-format on
    for (const auto& [role, row] : roles)
        EXPECT_EQ(classifyByBundleID(role), classifyByBundleID(row)) << role;
}

// Every keyword reaches its group inside any name and in any case; a name with keywords of two groups
// goes to the earlier group.
TEST(AppRules, NameKeywordsReachTheirGroupAndEarlierGroupsWin) {
    const auto groups = appNameRuleGroups();
    ASSERT_EQ(groups.size(), 12u);
    for (std::size_t g = 0; g < groups.size(); ++g) {
        const R expected{groups[g].categoryID, groups[g].confidence};
        for (std::string_view keyword : groups[g].keywords) {
            EXPECT_EQ(classifyByAppName(keyword), expected) << keyword;
            EXPECT_EQ(classifyByAppName("My " + upper(std::string(keyword)) + " 2"), expected) << keyword;
        }
        for (std::size_t later = g + 1; later < groups.size(); ++later) {
            const std::string name =
                std::string(groups[later].keywords.front()) + " " + std::string(groups[g].keywords.back());
            EXPECT_EQ(classifyByAppName(name), expected) << name;
        }
    }
    // clang-format off
    const std::pair<std::string, std::optional<R>> cases[] = {
        {"Hyperion", R{2, 0.90}},         {"Mail Notes", R{5, 0.85}},    {"Epic Games", R{19, 0.88}},
        {"Research Assistant", R{21, 0.40}},  // "arc"
        {"GNOME Text Editor", nullopt},   {"Preview", nullopt},          {"", nullopt},
    };
    // clang-format on
    for (const auto& [name, expected] : cases)
        EXPECT_EQ(classifyByAppName(name), expected) << name;
}

TEST(AppRules, SourceFileExtensionAnywhereInTheTitleMeansCoding) {
    const R coding{1, 0.80};
    ASSERT_EQ(sourceFileExtensions().size(), 21u);
    for (std::string_view extension : sourceFileExtensions()) {
        EXPECT_EQ(classifyByWindowTitle("main" + std::string(extension), "gedit"), coding) << extension;
        EXPECT_EQ(classifyByWindowTitle(upper("MAIN" + std::string(extension) + " - Editor"), ""), coding)
            << extension;
    }
    // clang-format off
    const std::pair<std::string, std::optional<R>> cases[] = {
        {"example.com - Notes", coding},  // ".c" in front of further letters
        {"a..rs", coding},       {"README.md", nullopt},   {"Wait.", nullopt},
        {"main rs", nullopt},    {"", nullopt},
    };
    // clang-format on
    for (const auto& [title, expected] : cases)
        EXPECT_EQ(classifyByWindowTitle(title, "Editor"), expected) << title;
}

TEST(AppRules, AnyTextIsSafe) {
    const std::string huge(100000, 'a');
    EXPECT_EQ(classifyByWindowTitle(huge + ".rs", ""), (R{1, 0.80}));
    EXPECT_EQ(classifyByWindowTitle(std::string(100000, '.'), ""), nullopt);
    EXPECT_EQ(classifyByWindowTitle(std::string("lib\0.rs", 7), ""), (R{1, 0.80}));
    EXPECT_EQ(classifyByWindowTitle("\xFF.\xFEpy", ""), nullopt);
    EXPECT_EQ(classifyByAppName(huge + "Slack"), (R{6, 0.85}));
    EXPECT_EQ(classifyByAppName(std::string("sla\0ck", 6)), nullopt);
    EXPECT_EQ(classifyByAppName("\xC3\x28kitty"), (R{2, 0.90}));
    EXPECT_EQ(classifyByBundleID(std::string("com.apple.mail\0x", 16)), (R{5, 0.99}));
}

}  // namespace
}  // namespace larkspan
