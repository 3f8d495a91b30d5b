// The application tables. Each is consulted at most once per new activity and is small (55 bundle
// prefixes and 12 role identifiers, 66 name keywords, 21 extensions), so look-ups scan in order; the
// name is lower-cased once into a stack buffer, and the title is matched in place at each "." it
// holds.
#include "Classification/AppRules.h"

#include "Classification/Category.h"
#include "Platform/AppRoles.h"
#include "Platform/AsciiLower.h"

namespace larkspan {

namespace {

namespace id = category_id;

// Every row is a prefix test, also those that spell out a whole identifier.
constexpr BundleRule kBundleRules[] = {
    {"com.apple.dt.Xcode", id::coding, 0.99},
    {"com.microsoft.VSCode", id::coding, 0.99},
    {"com.jetbrains.", id::coding, 0.97},
    {"com.cursor.", id::coding, 0.99},
    {"io.zed.zed", id::coding, 0.99},
    {"com.sublimetext.", id::coding, 0.95},
    {"com.barebones.bbedit", id::coding, 0.90},
    {"com.panic.Nova", id::coding, 0.95},
    {"com.microsoft.rdc.macos", id::coding, 0.75},
    {"dev.warp.Warp-1", id::terminal, 0.99},
    {"com.apple.Terminal", id::terminal, 0.99},
    {"com.googlecode.iterm2", id::terminal, 0.99},
    {"net.kovidgoyal.kitty", id::terminal, 0.99},
    {"com.mitchellh.ghostty", id::terminal, 0.99},
    {"com.apple.Notes", id::writing, 0.90},
    {"md.obsidian", id::writing, 0.90},
    {"net.shinyfrog.bear", id::writing, 0.90},
    {"com.microsoft.Word", id::writing, 0.85},
    {"com.apple.iWork.Pages", id::writing, 0.85},
    {"com.adobe.Reader", id::reading, 0.85},
    {"com.readdle.PDFExpert-Mac", id::reading, 0.88},
    {"com.tinyspeck.slackmacgap", id::communication, 0.97},
    {"com.hnc.Discord", id::communication, 0.90},
    {"ru.keepcoder.Telegram", id::communication, 0.90},
    {"com.apple.MobileSMS", id::communication, 0.97},
    {"com.apple.FaceTime", id::communication, 0.99},
    {"us.zoom.xos", id::communication, 0.97},
    {"com.microsoft.teams2", id::communication, 0.97},
    {"com.google.meet", id::communication, 0.97},
    {"com.apple.mail", id::email, 0.99},
    {"com.google.Gmail", id::email, 0.99},
    {"com.mimestream.Mimestream", id::email, 0.99},
    {"com.apple.iCal", id::planning, 0.97},
    {"com.apple.reminders", id::planning, 0.92},
    {"com.culturedcode.ThingsMac", id::planning, 0.95},
    {"com.omnigroup.OmniFocus3", id::planning, 0.97},
    {"com.linear.Linear", id::planning, 0.92},
    {"com.figma.Desktop", id::design, 0.97},
    {"com.sketch.SketchMac", id::design, 0.97},
    {"com.adobe.Photoshop", id::design, 0.90},
    {"com.adobe.Illustrator", id::design, 0.90},
    {"com.pixelmator.pro", id::design, 0.88},
    {"com.canva.CanvaDesktop", id::design, 0.85},
    {"com.apple.TV", id::entertainment, 0.99},
    {"com.netflix.Netflix", id::entertainment, 0.99},
    {"io.mpv.mpv", id::entertainment, 0.85},
    {"org.videolan.vlc", id::entertainment, 0.80},
    {"com.spotify.client", id::music, 0.95},
    {"com.apple.Music", id::music, 0.95},
    {"com.apple.systempreferences", id::system, 0.99},
    {"com.apple.ActivityMonitor", id::system, 0.99},
    {"com.apple.Console", id::system, 0.99},
    {"com.apple.finder", id::files, 0.95},
    {"com.apple.Photos", id::files, 0.85},
    {"com.valvesoftware.steam", id::gaming, 0.92},
};

// The desktop's own tools by role, each with the category and confidence of the bundle row of the
// same role. No bundle prefix begins one of them, so they are tried after the whole table.
constexpr BundleRule kRoleRules[] = {
    {app_role::terminal, id::terminal, 0.99},   {app_role::mail, id::email, 0.99},
    {app_role::calendar, id::planning, 0.97},   {app_role::tasks, id::planning, 0.92},
    {app_role::notes, id::writing, 0.90},       {app_role::music, id::music, 0.95},
    {app_role::video, id::entertainment, 0.99}, {app_role::settings, id::system, 0.99},
    {app_role::monitor, id::system, 0.99},      {app_role::logs, id::system, 0.99},
    {app_role::files, id::files, 0.95},         {app_role::photos, id::files, 0.85},
};

constexpr std::string_view kIdeNames[] = {
    "xcode", "android studio", "intellij", "pycharm", "webstorm", "clion", "rider", "goland", "rubymine",
};
constexpr std::string_view kTerminalNames[] = {"terminal", "iterm",     "warp", "kitty",
                                               "ghostty",  "alacritty", "hyper"};
constexpr std::string_view kMessagingNames[] = {"slack", "discord", "telegram", "teams",
                                                "zoom",  "webex",   "meet",     "skype"};
constexpr std::string_view kMailNames[] = {"mail", "gmail", "mimestream", "spark", "airmail", "outlook"};
constexpr std::string_view kPlanningNames[] = {"calendar",  "fantastical", "cron",  "things",
                                               "omnifocus", "todoist",     "notion"};
constexpr std::string_view kDesignNames[] = {"figma",       "sketch", "photoshop",
                                             "illustrator", "canva",  "affinity"};
constexpr std::string_view kWritingNames[] = {"notes", "bear", "obsidian", "craft", "logseq", "roam"};
constexpr std::string_view kMusicNames[] = {"spotify", "music", "deezer", "tidal", "youtube music"};
constexpr std::string_view kPlayerNames[] = {"vlc", "iina", "mpv", "quicktime", "infuse"};
constexpr std::string_view kFileManagerNames[] = {"finder"};
constexpr std::string_view kGameStoreNames[] = {"steam", "epic games"};
// A browser that reaches the name table had no usable domain: "Other", and the user is asked.
constexpr std::string_view kBrowserNames[] = {"safari", "chrome", "firefox", "arc", "brave", "edge", "opera"};

// Order is the priority: a name holding keywords of two groups goes to the earlier one.
constexpr AppNameRuleGroup kAppNameGroups[] = {
    {kIdeNames, id::coding, 0.90},
    {kTerminalNames, id::terminal, 0.90},
    {kMessagingNames, id::communication, 0.85},
    {kMailNames, id::email, 0.85},
    {kPlanningNames, id::planning, 0.80},
    {kDesignNames, id::design, 0.85},
    {kWritingNames, id::writing, 0.80},
    {kMusicNames, id::music, 0.85},
    {kPlayerNames, id::entertainment, 0.80},
    {kFileManagerNames, id::files, 0.90},
    {kGameStoreNames, id::gaming, 0.88},
    {kBrowserNames, id::other, 0.40},
};

constexpr std::string_view kSourceFileExtensions[] = {
    ".swift", ".py",  ".js", ".ts",  ".go",  ".rs",  ".java", ".kt",   ".cpp",  ".c",    ".h",
    ".rb",    ".php", ".cs", ".vue", ".jsx", ".tsx", ".sh",   ".yaml", ".json", ".toml",
};
constexpr double kSourceFileConfidence = 0.80;

std::optional<ClassificationResult> firstPrefixMatch(std::span<const BundleRule> rules,
                                                     std::string_view bundleID) {
    for (const BundleRule& rule : rules) {
        if (bundleID.starts_with(rule.prefix))
            return ClassificationResult{rule.categoryID, rule.confidence};
    }
    return std::nullopt;
}

}  // namespace

std::span<const BundleRule> bundleRules() {
    return kBundleRules;
}
std::span<const AppNameRuleGroup> appNameRuleGroups() {
    return kAppNameGroups;
}
std::span<const std::string_view> sourceFileExtensions() {
    return kSourceFileExtensions;
}

std::optional<ClassificationResult> classifyByBundleID(std::string_view bundleID) {
    if (auto result = firstPrefixMatch(kBundleRules, bundleID))
        return result;
    return firstPrefixMatch(kRoleRules, bundleID);
}

std::optional<ClassificationResult> classifyByAppName(std::string_view appName) {
    const AsciiLower name(appName);
    for (const AppNameRuleGroup& group : kAppNameGroups) {
        for (std::string_view keyword : group.keywords) {
            if (name.contains(keyword))
                return ClassificationResult{group.categoryID, group.confidence};
        }
    }
    return std::nullopt;
}

std::optional<ClassificationResult> classifyByWindowTitle(std::string_view title,
                                                          std::string_view /*appName*/) {
    // Every extension begins with ".", so an extension occurs in the title exactly when it follows
    // one of the title's dots.
    for (std::size_t dot = title.find('.'); dot != std::string_view::npos; dot = title.find('.', dot + 1)) {
        for (std::string_view extension : kSourceFileExtensions) {
            if (hasAsciiLowerAt(title, dot, extension)) {
                return ClassificationResult{id::coding, kSourceFileConfidence};
            }
        }
    }
    return std::nullopt;
}

}  // namespace larkspan
