// The canonical identifier table. Keys are the desktop ids (distribution packages, Flatpak ids,
// vendor packages) and window classes under which each product ships on Linux.
//
// Products that also exist elsewhere keep their own identifier. The desktop's own tools that have
// no cross-platform identity — its terminal, file manager, settings, system monitor, log viewer,
// calendar, to-do list, notes, mail client, music and video players, photo library — take the
// identifier of the platform tool of the same role, so that they classify as what they are.
#include "Platform/Linux/CanonicalIdentifiers.h"

#include <unordered_map>

#include "Platform/Linux/DesktopEntries.h"

namespace larkspan {

const std::vector<CanonicalIdentifier>& canonicalIdentifiers() {
    static const std::vector<CanonicalIdentifier> table = {
        // Browsers
        {"firefox", "org.mozilla.firefox"},
        {"firefox-esr", "org.mozilla.firefox"},
        {"org.mozilla.firefox", "org.mozilla.firefox"},
        {"firefox-developer-edition", "org.mozilla.firefox"},
        {"firefox-nightly", "org.mozilla.firefox"},
        // Chromium is Chrome without the branding: the same browser to the rule tables.
        {"chromium", "com.google.Chrome"},
        {"chromium-browser", "com.google.Chrome"},
        {"org.chromium.chromium", "com.google.Chrome"},
        {"google-chrome", "com.google.Chrome"},
        {"google-chrome-stable", "com.google.Chrome"},
        {"com.google.chrome", "com.google.Chrome"},
        {"google-chrome-beta", "com.google.Chrome.beta"},
        {"google-chrome-unstable", "com.google.Chrome.dev"},
        {"brave-browser", "com.brave.Browser"},
        {"com.brave.browser", "com.brave.Browser"},
        {"brave-browser-beta", "com.brave.Browser.beta"},
        {"brave-browser-nightly", "com.brave.Browser.nightly"},
        {"microsoft-edge", "com.microsoft.edgemac"},
        {"microsoft-edge-stable", "com.microsoft.edgemac"},
        {"com.microsoft.edge", "com.microsoft.edgemac"},
        {"microsoft-edge-beta", "com.microsoft.edgemac.Beta"},
        {"microsoft-edge-dev", "com.microsoft.edgemac.Dev"},
        {"opera", "com.operasoftware.Opera"},
        {"com.opera.opera", "com.operasoftware.Opera"},
        {"vivaldi", "com.vivaldi.Vivaldi"},
        {"vivaldi-stable", "com.vivaldi.Vivaldi"},
        {"com.vivaldi.vivaldi", "com.vivaldi.Vivaldi"},
        // Editors and IDEs
        {"code", "com.microsoft.VSCode"},
        {"code-oss", "com.microsoft.VSCode"},
        {"visual-studio-code", "com.microsoft.VSCode"},
        {"com.visualstudio.code", "com.microsoft.VSCode"},
        {"com.visualstudio.code-oss", "com.microsoft.VSCode"},
        {"codium", "com.microsoft.VSCode"},
        {"vscodium", "com.microsoft.VSCode"},
        {"com.vscodium.codium", "com.microsoft.VSCode"},
        {"code-insiders", "com.microsoft.VSCodeInsiders"},
        {"cursor", "com.cursor.Cursor"},
        {"zed", "io.zed.zed"},
        {"dev.zed.zed", "io.zed.zed"},
        {"dev.zed.zed-preview", "io.zed.zed-preview"},
        {"sublime_text", "com.sublimetext.4"},
        {"sublime-text", "com.sublimetext.4"},
        {"jetbrains-idea", "com.jetbrains.intellij"},
        {"jetbrains-idea-ce", "com.jetbrains.intellij.ce"},
        {"jetbrains-pycharm", "com.jetbrains.pycharm"},
        {"jetbrains-pycharm-ce", "com.jetbrains.pycharm.ce"},
        {"jetbrains-clion", "com.jetbrains.CLion"},
        {"jetbrains-goland", "com.jetbrains.goland"},
        {"jetbrains-webstorm", "com.jetbrains.WebStorm"},
        {"jetbrains-rider", "com.jetbrains.rider"},
        {"jetbrains-phpstorm", "com.jetbrains.PhpStorm"},
        {"jetbrains-rubymine", "com.jetbrains.rubymine"},
        {"jetbrains-datagrip", "com.jetbrains.datagrip"},
        {"jetbrains-rustrover", "com.jetbrains.rustrover"},
        {"obsidian", "md.obsidian"},
        // Terminals
        {"kitty", "net.kovidgoyal.kitty"},
        {"ghostty", "com.mitchellh.ghostty"},
        {"dev.warp.warp", "dev.warp.Warp-1"},
        {"warp-terminal", "dev.warp.Warp-1"},
        {"org.gnome.terminal", "com.apple.Terminal"},
        {"gnome-terminal", "com.apple.Terminal"},
        {"gnome-terminal-server", "com.apple.Terminal"},
        {"org.gnome.console", "com.apple.Terminal"},
        {"kgx", "com.apple.Terminal"},
        {"org.gnome.ptyxis", "com.apple.Terminal"},
        {"org.kde.konsole", "com.apple.Terminal"},
        {"konsole", "com.apple.Terminal"},
        {"xfce4-terminal", "com.apple.Terminal"},
        {"lxterminal", "com.apple.Terminal"},
        {"mate-terminal", "com.apple.Terminal"},
        {"qterminal", "com.apple.Terminal"},
        {"terminator", "com.apple.Terminal"},
        {"com.gexperts.tilix", "com.apple.Terminal"},
        {"tilix", "com.apple.Terminal"},
        {"xterm", "com.apple.Terminal"},
        {"debian-xterm", "com.apple.Terminal"},
        {"uxterm", "com.apple.Terminal"},
        {"debian-uxterm", "com.apple.Terminal"},
        {"urxvt", "com.apple.Terminal"},
        {"rxvt-unicode", "com.apple.Terminal"},
        {"foot", "com.apple.Terminal"},
        {"org.codeberg.dnkl.foot", "com.apple.Terminal"},
        {"org.wezfurlong.wezterm", "com.apple.Terminal"},
        // Chat and meetings
        {"slack", "com.tinyspeck.slackmacgap"},
        {"com.slack.slack", "com.tinyspeck.slackmacgap"},
        {"discord", "com.hnc.Discord"},
        {"com.discordapp.discord", "com.hnc.Discord"},
        {"telegram-desktop", "ru.keepcoder.Telegram"},
        {"telegramdesktop", "ru.keepcoder.Telegram"},
        {"org.telegram.desktop", "ru.keepcoder.Telegram"},
        {"zoom", "us.zoom.xos"},
        {"us.zoom.zoom", "us.zoom.xos"},
        {"teams-for-linux", "com.microsoft.teams2"},
        {"com.github.ismaelmartinez.teams_for_linux", "com.microsoft.teams2"},
        // Mail
        {"thunderbird", "com.apple.mail"},
        {"org.mozilla.thunderbird", "com.apple.mail"},
        {"net.thunderbird.thunderbird", "com.apple.mail"},
        {"org.gnome.evolution", "com.apple.mail"},
        {"evolution", "com.apple.mail"},
        {"org.gnome.geary", "com.apple.mail"},
        {"org.kde.kmail2", "com.apple.mail"},
        // Planning and notes
        {"org.gnome.calendar", "com.apple.iCal"},
        {"org.kde.korganizer", "com.apple.iCal"},
        {"org.gnome.todo", "com.apple.reminders"},
        {"org.gnome.notes", "com.apple.Notes"},
        {"org.kde.knotes", "com.apple.Notes"},
        // Design
        {"figma-linux", "com.figma.Desktop"},
        {"io.github.figma_linux.figma_linux", "com.figma.Desktop"},
        // Music and video
        {"spotify", "com.spotify.client"},
        {"com.spotify.client", "com.spotify.client"},
        {"org.gnome.rhythmbox3", "com.apple.Music"},
        {"rhythmbox", "com.apple.Music"},
        {"org.kde.elisa", "com.apple.Music"},
        {"org.gnome.music", "com.apple.Music"},
        {"org.gnome.lollypop", "com.apple.Music"},
        {"vlc", "org.videolan.vlc"},
        {"org.videolan.vlc", "org.videolan.vlc"},
        {"mpv", "io.mpv.mpv"},
        {"io.mpv.mpv", "io.mpv.mpv"},
        {"io.github.celluloid_player.celluloid", "io.mpv.mpv"},
        {"org.kde.haruna", "io.mpv.mpv"},
        {"org.gnome.totem", "com.apple.TV"},
        {"org.gnome.showtime", "com.apple.TV"},
        {"smplayer", "com.apple.TV"},
        {"org.kde.dragonplayer", "com.apple.TV"},
        // System and files
        {"org.gnome.settings", "com.apple.systempreferences"},
        {"gnome-control-center", "com.apple.systempreferences"},
        {"systemsettings", "com.apple.systempreferences"},
        {"org.kde.systemsettings", "com.apple.systempreferences"},
        {"xfce-settings-manager", "com.apple.systempreferences"},
        {"org.gnome.systemmonitor", "com.apple.ActivityMonitor"},
        {"gnome-system-monitor", "com.apple.ActivityMonitor"},
        {"org.kde.plasma-systemmonitor", "com.apple.ActivityMonitor"},
        {"org.kde.ksysguard", "com.apple.ActivityMonitor"},
        {"xfce4-taskmanager", "com.apple.ActivityMonitor"},
        {"io.missioncenter.missioncenter", "com.apple.ActivityMonitor"},
        {"org.gnome.logs", "com.apple.Console"},
        {"org.kde.ksystemlog", "com.apple.Console"},
        {"org.gnome.nautilus", "com.apple.finder"},
        {"nautilus", "com.apple.finder"},
        {"org.kde.dolphin", "com.apple.finder"},
        {"dolphin", "com.apple.finder"},
        {"thunar", "com.apple.finder"},
        {"org.xfce.thunar", "com.apple.finder"},
        {"nemo", "com.apple.finder"},
        {"caja", "com.apple.finder"},
        {"pcmanfm", "com.apple.finder"},
        {"pcmanfm-qt", "com.apple.finder"},
        {"org.gnome.photos", "com.apple.Photos"},
        {"shotwell", "com.apple.Photos"},
        {"org.gnome.shotwell", "com.apple.Photos"},
        // Games
        {"steam", "com.valvesoftware.steam"},
        {"com.valvesoftware.steam", "com.valvesoftware.steam"},
    };
    return table;
}

std::optional<std::string> canonicalIdentifier(std::string_view desktopIDOrClass) {
    static const auto byKey = [] {
        std::unordered_map<std::string_view, std::string_view> map;
        for (const auto& row : canonicalIdentifiers())
            map.emplace(row.key, row.identifier);
        return map;
    }();
    const auto key = asciiLower(desktopIDOrClass);
    auto it = byKey.find(key);
    if (it == byKey.end())
        return std::nullopt;
    return std::string(it->second);
}

}  // namespace larkspan
