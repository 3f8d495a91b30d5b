// The canonical identifier table. Keys are the desktop ids (distribution packages, Flatpak ids,
// vendor packages) and window classes under which each product ships on Linux.
//
// Products that also exist elsewhere keep their own identifier. The desktop's own tools that have
// no cross-platform identity — its terminal, file manager, settings, system monitor, log viewer,
// calendar, to-do list, notes, mail client, music and video players, photo library — take the
// Larkspan identifier of their role, which the rule tables know.
#include "Platform/Linux/CanonicalIdentifiers.h"

#include <unordered_map>

#include "Platform/AppRoles.h"
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
        {"org.gnome.terminal", app_role::terminal},
        {"gnome-terminal", app_role::terminal},
        {"gnome-terminal-server", app_role::terminal},
        {"org.gnome.console", app_role::terminal},
        {"kgx", app_role::terminal},
        {"org.gnome.ptyxis", app_role::terminal},
        {"org.kde.konsole", app_role::terminal},
        {"konsole", app_role::terminal},
        {"xfce4-terminal", app_role::terminal},
        {"lxterminal", app_role::terminal},
        {"mate-terminal", app_role::terminal},
        {"qterminal", app_role::terminal},
        {"terminator", app_role::terminal},
        {"com.gexperts.tilix", app_role::terminal},
        {"tilix", app_role::terminal},
        {"xterm", app_role::terminal},
        {"debian-xterm", app_role::terminal},
        {"uxterm", app_role::terminal},
        {"debian-uxterm", app_role::terminal},
        {"urxvt", app_role::terminal},
        {"rxvt-unicode", app_role::terminal},
        {"foot", app_role::terminal},
        {"org.codeberg.dnkl.foot", app_role::terminal},
        {"org.wezfurlong.wezterm", app_role::terminal},
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
        {"thunderbird", app_role::mail},
        {"org.mozilla.thunderbird", app_role::mail},
        {"net.thunderbird.thunderbird", app_role::mail},
        {"org.gnome.evolution", app_role::mail},
        {"evolution", app_role::mail},
        {"org.gnome.geary", app_role::mail},
        {"org.kde.kmail2", app_role::mail},
        // Planning and notes
        {"org.gnome.calendar", app_role::calendar},
        {"org.kde.korganizer", app_role::calendar},
        {"org.gnome.todo", app_role::tasks},
        {"org.gnome.notes", app_role::notes},
        {"org.kde.knotes", app_role::notes},
        // Design
        {"figma-linux", "com.figma.Desktop"},
        {"io.github.figma_linux.figma_linux", "com.figma.Desktop"},
        // Music and video
        {"spotify", "com.spotify.client"},
        {"com.spotify.client", "com.spotify.client"},
        {"org.gnome.rhythmbox3", app_role::music},
        {"rhythmbox", app_role::music},
        {"org.kde.elisa", app_role::music},
        {"org.gnome.music", app_role::music},
        {"org.gnome.lollypop", app_role::music},
        {"vlc", "org.videolan.vlc"},
        {"org.videolan.vlc", "org.videolan.vlc"},
        {"mpv", "io.mpv.mpv"},
        {"io.mpv.mpv", "io.mpv.mpv"},
        {"io.github.celluloid_player.celluloid", "io.mpv.mpv"},
        {"org.kde.haruna", "io.mpv.mpv"},
        {"org.gnome.totem", app_role::video},
        {"org.gnome.showtime", app_role::video},
        {"smplayer", app_role::video},
        {"org.kde.dragonplayer", app_role::video},
        // System and files
        {"org.gnome.settings", app_role::settings},
        {"gnome-control-center", app_role::settings},
        {"systemsettings", app_role::settings},
        {"org.kde.systemsettings", app_role::settings},
        {"xfce-settings-manager", app_role::settings},
        {"org.gnome.systemmonitor", app_role::monitor},
        {"gnome-system-monitor", app_role::monitor},
        {"org.kde.plasma-systemmonitor", app_role::monitor},
        {"org.kde.ksysguard", app_role::monitor},
        {"xfce4-taskmanager", app_role::monitor},
        {"io.missioncenter.missioncenter", app_role::monitor},
        {"org.gnome.logs", app_role::logs},
        {"org.kde.ksystemlog", app_role::logs},
        {"org.gnome.nautilus", app_role::files},
        {"nautilus", app_role::files},
        {"org.kde.dolphin", app_role::files},
        {"dolphin", app_role::files},
        {"thunar", app_role::files},
        {"org.xfce.thunar", app_role::files},
        {"nemo", app_role::files},
        {"caja", app_role::files},
        {"pcmanfm", app_role::files},
        {"pcmanfm-qt", app_role::files},
        {"org.gnome.photos", app_role::photos},
        {"shotwell", app_role::photos},
        {"org.gnome.shotwell", app_role::photos},
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
