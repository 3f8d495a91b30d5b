#include "Platform/Linux/CanonicalIdentifiers.h"

#include <gtest/gtest.h>

#include <set>

#include "Classification/AppRules.h"
#include "Tracking/BrowserTracker.h"
#include "Tracking/IdleMonitor.h"

namespace larkspan {
namespace {

TEST(CanonicalIdentifiers, EveryRowIsLowerCaseUniqueAndNamesARuleIdentifier) {
    std::set<std::string_view> keys;
    for (const auto& row : canonicalIdentifiers()) {
        EXPECT_TRUE(keys.insert(row.key).second) << "duplicate key " << row.key;
        for (char c : row.key)
            EXPECT_FALSE(c >= 'A' && c <= 'Z') << row.key;
        // Of use only if a rule, the browser list or the idle thresholds know the identifier.
        const std::string identifier(row.identifier);
        EXPECT_TRUE(classifyByBundleID(identifier) || BrowserTracker::isBrowser(identifier) ||
                    IdleMonitor::idleThreshold(identifier) == IdleMonitor::mediaThreshold)
            << row.key << " -> " << row.identifier;
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
