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
using test::lower;
using test::upper;

TEST(AppRules, BundleTableRowsInOrderArePrefixesCaseSensitive) {
    const BundleRule expected[] = {
        {"com.apple.dt.Xcode", 1, 0.99},
        {"com.microsoft.VSCode", 1, 0.99},
        {"com.jetbrains.", 1, 0.97},
        {"com.cursor.", 1, 0.99},
        {"io.zed.zed", 1, 0.99},
        {"com.sublimetext.", 1, 0.95},
        {"com.barebones.bbedit", 1, 0.90},
        {"com.panic.Nova", 1, 0.95},
        {"com.microsoft.rdc.macos", 1, 0.75},
        {"dev.warp.Warp-1", 2, 0.99},
        {"com.apple.Terminal", 2, 0.99},
        {"com.googlecode.iterm2", 2, 0.99},
        {"net.kovidgoyal.kitty", 2, 0.99},
        {"com.mitchellh.ghostty", 2, 0.99},
        {"com.apple.Notes", 3, 0.90},
        {"md.obsidian", 3, 0.90},
        {"net.shinyfrog.bear", 3, 0.90},
        {"com.microsoft.Word", 3, 0.85},
        {"com.apple.iWork.Pages", 3, 0.85},
        {"com.adobe.Reader", 10, 0.85},
        {"com.readdle.PDFExpert-Mac", 10, 0.88},
        {"com.tinyspeck.slackmacgap", 6, 0.97},
        {"com.hnc.Discord", 6, 0.90},
        {"ru.keepcoder.Telegram", 6, 0.90},
        {"com.apple.MobileSMS", 6, 0.97},
        {"com.apple.FaceTime", 6, 0.99},
        {"us.zoom.xos", 6, 0.97},
        {"com.microsoft.teams2", 6, 0.97},
        {"com.google.meet", 6, 0.97},
        {"com.apple.mail", 5, 0.99},
        {"com.google.Gmail", 5, 0.99},
        {"com.mimestream.Mimestream", 5, 0.99},
        {"com.apple.iCal", 7, 0.97},
        {"com.apple.reminders", 7, 0.92},
        {"com.culturedcode.ThingsMac", 7, 0.95},
        {"com.omnigroup.OmniFocus3", 7, 0.97},
        {"com.linear.Linear", 7, 0.92},
        {"com.figma.Desktop", 8, 0.97},
        {"com.sketch.SketchMac", 8, 0.97},
        {"com.adobe.Photoshop", 8, 0.90},
        {"com.adobe.Illustrator", 8, 0.90},
        {"com.pixelmator.pro", 8, 0.88},
        {"com.canva.CanvaDesktop", 8, 0.85},
        {"com.apple.TV", 16, 0.99},
        {"com.netflix.Netflix", 16, 0.99},
        {"io.mpv.mpv", 16, 0.85},
        {"org.videolan.vlc", 16, 0.80},
        {"com.spotify.client", 12, 0.95},
        {"com.apple.Music", 12, 0.95},
        {"com.apple.systempreferences", 13, 0.99},
        {"com.apple.ActivityMonitor", 13, 0.99},
        {"com.apple.Console", 13, 0.99},
        {"com.apple.finder", 14, 0.95},
        {"com.apple.Photos", 14, 0.85},
        {"com.valvesoftware.steam", 19, 0.92},
    };
    const auto rows = bundleRules();
    ASSERT_EQ(rows.size(), std::size(expected));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const BundleRule& row = expected[i];
        const std::string prefix(row.prefix);
        SCOPED_TRACE(prefix);
        EXPECT_EQ(rows[i].prefix, row.prefix);
        const ClassificationResult result{row.categoryID, row.confidence};
        EXPECT_EQ(classifyByBundleID(prefix), result);
        EXPECT_EQ(classifyByBundleID(prefix + "Helper.2"), result);
        // A shorter id, or one in another case, is no match.
        EXPECT_EQ(classifyByBundleID(prefix.substr(0, prefix.size() - 1)), nullopt);
        EXPECT_EQ(classifyByBundleID(upper(prefix)), nullopt);
        if (lower(prefix) != prefix) {
            EXPECT_EQ(classifyByBundleID(lower(prefix)), nullopt);
        }
        EXPECT_EQ(classifyByBundleID("x" + prefix), nullopt);
    }
    EXPECT_EQ(classifyByBundleID("com.jetbrains.intellij.ce"), (ClassificationResult{1, 0.97}));
    EXPECT_EQ(classifyByBundleID("com.jetbrains.pycharm"), (ClassificationResult{1, 0.97}));
    EXPECT_EQ(classifyByBundleID("com.apple.TVRemote"), (ClassificationResult{16, 0.99}));
    EXPECT_EQ(classifyByBundleID(""), nullopt);
    EXPECT_EQ(classifyByBundleID("org.gnome.Nautilus"), nullopt);
}

TEST(AppRules, RoleIdentifiersClassifyLikeTheBundleRowOfTheirRole) {
    const std::pair<std::string_view, std::string_view> roles[] = {
        {app_role::terminal, "com.apple.Terminal"},
        {app_role::mail, "com.apple.mail"},
        {app_role::calendar, "com.apple.iCal"},
        {app_role::tasks, "com.apple.reminders"},
        {app_role::notes, "com.apple.Notes"},
        {app_role::music, "com.apple.Music"},
        {app_role::video, "com.apple.TV"},
        {app_role::settings, "com.apple.systempreferences"},
        {app_role::monitor, "com.apple.ActivityMonitor"},
        {app_role::logs, "com.apple.Console"},
        {app_role::files, "com.apple.finder"},
        {app_role::photos, "com.apple.Photos"}};
    for (const auto& [role, row] : roles)
        EXPECT_EQ(classifyByBundleID(role), classifyByBundleID(row)) << role;
}

struct NameGroup {
    std::int64_t category;
    double confidence;
    std::vector<std::string> keywords;
};

const std::vector<NameGroup>& expectedNameGroups() {
    static const std::vector<NameGroup> groups = {
        {1,
         0.90,
         {"xcode", "android studio", "intellij", "pycharm", "webstorm", "clion", "rider", "goland",
          "rubymine"}},
        {2, 0.90, {"terminal", "iterm", "warp", "kitty", "ghostty", "alacritty", "hyper"}},
        {6, 0.85, {"slack", "discord", "telegram", "teams", "zoom", "webex", "meet", "skype"}},
        {5, 0.85, {"mail", "gmail", "mimestream", "spark", "airmail", "outlook"}},
        {7, 0.80, {"calendar", "fantastical", "cron", "things", "omnifocus", "todoist", "notion"}},
        {8, 0.85, {"figma", "sketch", "photoshop", "illustrator", "canva", "affinity"}},
        {3, 0.80, {"notes", "bear", "obsidian", "craft", "logseq", "roam"}},
        {12, 0.85, {"spotify", "music", "deezer", "tidal", "youtube music"}},
        {16, 0.80, {"vlc", "iina", "mpv", "quicktime", "infuse"}},
        {14, 0.90, {"finder"}},
        {19, 0.88, {"steam", "epic games"}},
        {21, 0.40, {"safari", "chrome", "firefox", "arc", "brave", "edge", "opera"}},
    };
    return groups;
}

TEST(AppRules, EveryNameKeywordReachesItsGroupInAnyCase) {
    const auto& groups = expectedNameGroups();
    const auto table = appNameRuleGroups();
    ASSERT_EQ(table.size(), groups.size());
    for (std::size_t g = 0; g < groups.size(); ++g) {
        EXPECT_EQ(table[g].keywords.size(), groups[g].keywords.size()) << "group " << g + 1;
        const ClassificationResult expected{groups[g].category, groups[g].confidence};
        for (const std::string& keyword : groups[g].keywords) {
            EXPECT_EQ(classifyByAppName(keyword), expected) << keyword;
            EXPECT_EQ(classifyByAppName("My " + upper(keyword) + " 2"), expected) << keyword;
        }
    }
}

TEST(AppRules, NameHoldingKeywordsOfTwoGroupsGoesToTheEarlier) {
    const auto& groups = expectedNameGroups();
    for (std::size_t earlier = 0; earlier < groups.size(); ++earlier) {
        for (std::size_t later = earlier + 1; later < groups.size(); ++later) {
            const std::string name = groups[later].keywords.front() + " " + groups[earlier].keywords.back();
            EXPECT_EQ(classifyByAppName(name),
                      (ClassificationResult{groups[earlier].category, groups[earlier].confidence}))
                << name;
        }
    }
    EXPECT_EQ(classifyByAppName("Mail Notes"), (ClassificationResult{5, 0.85}));
}

TEST(AppRules, NameKeywordsMatchInsideLongerNames) {
    const std::pair<std::string, std::optional<ClassificationResult>> cases[] = {
        {"Safari", ClassificationResult{21, 0.40}},
        {"Hyperion", ClassificationResult{2, 0.90}},
        {"Research Assistant", ClassificationResult{21, 0.40}},  // "arc"
        {"Microsoft Edge", ClassificationResult{21, 0.40}},
        {"Thunderbird Mail", ClassificationResult{5, 0.85}},
        {"GNOME Text Editor", nullopt},
        {"Preview", nullopt},
        {"", nullopt},
    };
    for (const auto& [name, expected] : cases) {
        EXPECT_EQ(classifyByAppName(name), expected) << name;
    }
}

TEST(AppRules, SourceFileExtensionAnywhereInTheTitleMeansCoding) {
    const ClassificationResult coding{1, 0.80};
    EXPECT_EQ(sourceFileExtensions().size(), 21u);
    for (const char* extension :
         {".swift", ".py",  ".js", ".ts",  ".go",  ".rs",  ".java", ".kt",   ".cpp",  ".c",   ".h",
          ".rb",    ".php", ".cs", ".vue", ".jsx", ".tsx", ".sh",   ".yaml", ".json", ".toml"}) {
        EXPECT_EQ(classifyByWindowTitle(std::string("main") + extension, "gedit"), coding) << extension;
        EXPECT_EQ(classifyByWindowTitle(upper(std::string("MAIN") + extension + " - Editor"), ""), coding)
            << extension;
    }
    const std::pair<std::string, std::optional<ClassificationResult>> cases[] = {
        {"example.com - Notes", coding},  // ".c" in front of further letters
        {"index.html", coding},           // ".h" likewise
        {"a..rs", coding},
        {"Report.pdf", nullopt},
        {"README.md", nullopt},
        {"Budget.xlsx", nullopt},
        {"Wait.", nullopt},
        {"main rs", nullopt},
        {".", nullopt},
        {"", nullopt},
    };
    for (const auto& [title, expected] : cases) {
        EXPECT_EQ(classifyByWindowTitle(title, "Editor"), expected) << title;
    }
}

TEST(AppRules, AnyTextIsSafe) {
    const std::string huge(100000, 'a');
    EXPECT_EQ(classifyByWindowTitle(huge + ".rs", ""), (ClassificationResult{1, 0.80}));
    EXPECT_EQ(classifyByWindowTitle(std::string(100000, '.'), ""), nullopt);
    EXPECT_EQ(classifyByWindowTitle(std::string("lib\0.rs", 7), ""), (ClassificationResult{1, 0.80}));
    EXPECT_EQ(classifyByWindowTitle("\xFF.\xFEpy", ""), nullopt);
    EXPECT_EQ(classifyByWindowTitle("\u05E7\u05D5\u05D1\u05E5.py \U0001F40D", ""),
              (ClassificationResult{1, 0.80}));
    EXPECT_EQ(classifyByAppName(huge + "Slack"), (ClassificationResult{6, 0.85}));
    EXPECT_EQ(classifyByAppName(huge), nullopt);
    EXPECT_EQ(classifyByAppName(std::string("sla\0ck", 6)), nullopt);
    EXPECT_EQ(classifyByAppName("\U0001F4AC Slack \u202Eabc"), (ClassificationResult{6, 0.85}));
    EXPECT_EQ(classifyByAppName("\xC3\x28kitty"), (ClassificationResult{2, 0.90}));
    EXPECT_EQ(classifyByBundleID(std::string("com.apple.mail\0x", 16)), (ClassificationResult{5, 0.99}));
    EXPECT_EQ(classifyByBundleID(huge), nullopt);
}

}  // namespace
}  // namespace larkspan
