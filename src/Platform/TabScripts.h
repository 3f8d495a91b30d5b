// The scripts that ask a browser for the address and title of its active tab. Each answers
// "address|||title", and on any failure inside the browser (no window) a fixed answer of the same
// shape. The texts are exact, byte for byte: lines joined by a single line feed, no final line feed,
// four-space indentation. The tab tracker sends them and the script runner recognises them by this
// very text, so both sides read them from here.
//
// On this desktop the texts are matched, never run: no scripting host executes them, and the runner
// answers each from whatever stands in for its target browser.
#pragma once

#include <optional>
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

struct TabScript {
    enum class Kind { safari, firefox, arc, orion, chromiumFamily };
    Kind kind;
    std::string application;  // the name after `tell application`
    bool operator==(const TabScript&) const = default;
};

// Which of the five scripts `source` is, byte for byte; the Chromium-family text may name any
// application. Nothing for any other text.
std::optional<TabScript> recogniseTabScript(std::string_view source);

}  // namespace larkspan
