// One desktop entry file (freedesktop Desktop Entry format), reduced to what identifies an
// application: its localized name, the window class it declares and whether it is visible.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace larkspan {

struct DesktopFile {
    std::string name;            // `Name`, localized; never empty unless `hidden`
    std::string startupWMClass;  // `StartupWMClass`; empty when absent
    std::string flatpakID;       // `X-Flatpak`; set in Flatpak's exported entries
    bool noDisplay = false;      // `NoDisplay=true`: an application, just not shown in menus
    bool hidden = false;         // `Hidden=true`: deleted; masks entries of the same id further down
};

// Parses a file's text. `localeKeys` are tried in order for `Name[key]` before the plain `Name`.
// Returns nothing for a file that is not a usable application entry: a NUL byte, no `[Desktop Entry]` group,
// a line of that group that is no key, group or comment, a `Type` other than `Application`, or a missing or
// ill-formed `Name`. A hidden entry needs neither `Type` nor `Name`.
std::optional<DesktopFile> parseDesktopFile(std::string_view text,
                                            const std::vector<std::string>& localeKeys);

}  // namespace larkspan
