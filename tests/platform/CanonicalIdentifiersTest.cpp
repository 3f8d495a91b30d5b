#include "Platform/Linux/CanonicalIdentifiers.h"

#include <gtest/gtest.h>

#include <set>

#include "Classification/AppRules.h"

namespace larkspan {
namespace {

// Every identifier the classification tables, the browser list and the idle thresholds name, as
// prefixes: an identifier the table produces must begin with one of them, or be a role identifier
// the bundle rules know, to be of any use.
const std::vector<std::string_view> kRuleIdentifiers = {
    "com.apple.dt.Xcode", "com.microsoft.VSCode", "com.jetbrains.", "com.cursor.", "io.zed.zed",
    "com.sublimetext.", "com.barebones.bbedit", "com.panic.Nova", "com.microsoft.rdc.macos",
    "dev.warp.Warp-1", "com.apple.Terminal", "com.googlecode.iterm2", "net.kovidgoyal.kitty",
    "com.mitchellh.ghostty", "com.apple.Notes", "md.obsidian", "net.shinyfrog.bear", "com.microsoft.Word",
    "com.apple.iWork.Pages", "com.adobe.Reader", "com.readdle.PDFExpert-Mac", "com.tinyspeck.slackmacgap",
    "com.hnc.Discord", "ru.keepcoder.Telegram", "com.apple.MobileSMS", "com.apple.FaceTime", "us.zoom.xos",
    "com.microsoft.teams2", "com.google.meet", "com.apple.mail", "com.google.Gmail",
    "com.mimestream.Mimestream", "com.apple.iCal", "com.apple.reminders", "com.culturedcode.ThingsMac",
    "com.omnigroup.OmniFocus3", "com.linear.Linear", "com.figma.Desktop", "com.sketch.SketchMac",
    "com.adobe.Photoshop", "com.adobe.Illustrator", "com.pixelmator.pro", "com.canva.CanvaDesktop",
    "com.apple.TV", "com.netflix.Netflix", "io.mpv.mpv", "org.videolan.vlc", "com.spotify.client",
    "com.apple.Music", "com.apple.systempreferences", "com.apple.ActivityMonitor", "com.apple.Console",
    "com.apple.finder", "com.apple.Photos", "com.valvesoftware.steam",
    // browsers and idle-threshold prefixes
    "com.apple.Safari", "com.google.Chrome", "org.mozilla.firefox", "company.thebrowser.Browser",
    "com.brave.Browser", "com.microsoft.edgemac", "com.operasoftware.Opera", "com.vivaldi.Vivaldi",
    "com.kagi.kagimacOS"};

TEST(CanonicalIdentifiers, EveryRowIsLowerCaseUniqueAndNamesARuleIdentifier) {
    std::set<std::string_view> keys;
    for (const auto& row : canonicalIdentifiers()) {
        EXPECT_TRUE(keys.insert(row.key).second) << "duplicate key " << row.key;
        for (char c : row.key)
            EXPECT_FALSE(c >= 'A' && c <= 'Z') << row.key;
        bool known = classifyByBundleID(row.identifier).has_value();
        for (auto prefix : kRuleIdentifiers)
            known = known || row.identifier.substr(0, prefix.size()) == prefix;
        EXPECT_TRUE(known) << row.key << " -> " << row.identifier;
    }
}

TEST(CanonicalIdentifiers, ShipsOfOneProductMeetAtOneIdentifier) {
    struct Case {
        const char* key;
        const char* identifier;
    };
    // Distribution package, Flatpak id and window class of each product; compared ignoring case.
    for (const auto& [key, identifier] : std::vector<Case>{
             {"firefox", "org.mozilla.firefox"},
             {"org.mozilla.firefox", "org.mozilla.firefox"},
             {"google-chrome", "com.google.Chrome"},
             {"com.google.Chrome", "com.google.Chrome"},
             {"brave-browser-beta", "com.brave.Browser.beta"},
             {"microsoft-edge-beta", "com.microsoft.edgemac.Beta"},
             {"com.visualstudio.code", "com.microsoft.VSCode"},
             {"Code", "com.microsoft.VSCode"},
             {"jetbrains-pycharm-ce", "com.jetbrains.pycharm.ce"},
             {"dev.zed.Zed", "io.zed.zed"},
             {"kitty", "net.kovidgoyal.kitty"},
             {"org.gnome.Terminal", "org.larkspan.role.terminal"},
             {"org.kde.konsole", "org.larkspan.role.terminal"},
             {"XTerm", "org.larkspan.role.terminal"},
             {"com.slack.Slack", "com.tinyspeck.slackmacgap"},
             {"com.discordapp.Discord", "com.hnc.Discord"},
             {"org.telegram.desktop", "ru.keepcoder.Telegram"},
             {"us.zoom.Zoom", "us.zoom.xos"},
             {"org.mozilla.Thunderbird", "org.larkspan.role.mail"},
             {"com.spotify.Client", "com.spotify.client"},
             {"org.videolan.VLC", "org.videolan.vlc"},
             {"io.mpv.Mpv", "io.mpv.mpv"},
             {"com.valvesoftware.Steam", "com.valvesoftware.steam"},
             {"org.gnome.Nautilus", "org.larkspan.role.files"},
             {"org.gnome.Totem", "org.larkspan.role.video"},
             {"gnome-control-center", "org.larkspan.role.settings"},
         }) {
        EXPECT_EQ(canonicalIdentifier(key).value_or("(none)"), identifier) << key;
    }
    // Anything else is left alone.
    for (const char* key : {"org.gnome.Epiphany", "xterm-256color", "", "firefox.desktop", "FIREFOX "}) {
        EXPECT_FALSE(canonicalIdentifier(key)) << key;
    }
}

}  // namespace
}  // namespace larkspan
