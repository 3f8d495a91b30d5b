// The scripts that ask a browser for the address and title of its active tab. Each answers
// "address|||title", and on any failure inside the browser (no window) a fixed answer of the same
// shape. The texts are exact, byte for byte: lines joined by a single line feed, no final line feed,
// four-space indentation. The tab tracker sends them and the desktop's script runner recognises
// them by this very text, so both sides read them from here.
#pragma once

#include <string>
#include <string_view>

namespace larkspan {

inline constexpr std::string_view kSafariTabScript =
    "tell application \"Safari\"\n"
    "    try\n"
    "        set u to URL of current tab of front window\n"
    "        set t to name of current tab of front window\n"
    "        return u & \"|||\" & t\n"
    "    on error\n"
    "        return \"about:blank|||Safari\"\n"
    "    end try\n"
    "end tell";

// Firefox exposes no tab: the address is the fixed "firefox://active" and the title the window's.
inline constexpr std::string_view kFirefoxTabScript =
    "tell application \"Firefox\"\n"
    "    try\n"
    "        set t to name of front window\n"
    "        return \"firefox://active|||\" & t\n"
    "    on error\n"
    "        return \"firefox://active|||Firefox\"\n"
    "    end try\n"
    "end tell";

inline constexpr std::string_view kArcTabScript =
    "tell application \"Arc\"\n"
    "    try\n"
    "        tell front window\n"
    "            set u to URL of active tab\n"
    "            set t to title of active tab\n"
    "            return u & \"|||\" & t\n"
    "        end tell\n"
    "    on error\n"
    "        return \"about:blank|||Arc\"\n"
    "    end try\n"
    "end tell";

inline constexpr std::string_view kOrionTabScript =
    "tell application \"Orion\"\n"
    "    try\n"
    "        set u to URL of current tab of front window\n"
    "        set t to name of current tab of front window\n"
    "        return u & \"|||\" & t\n"
    "    on error\n"
    "        return \"about:blank|||Orion\"\n"
    "    end try\n"
    "end tell";

// The script of the Chromium family, addressed to the application called `applicationName`, which
// also stands as the title of its error answer. Any name is taken as it is.
std::string chromiumFamilyTabScript(std::string_view applicationName);

}  // namespace larkspan
