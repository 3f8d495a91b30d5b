// The five script texts, exactly as the tab tracker writes them: lines joined by a single line
// feed, no final line feed, four-space indentation.
#include "Platform/Linux/BrowserScripts.h"

namespace larkspan {
namespace {

constexpr std::string_view kSafari =
    "tell application \"Safari\"\n"
    "    try\n"
    "        set u to URL of current tab of front window\n"
    "        set t to name of current tab of front window\n"
    "        return u & \"|||\" & t\n"
    "    on error\n"
    "        return \"about:blank|||Safari\"\n"
    "    end try\n"
    "end tell";

constexpr std::string_view kFirefox =
    "tell application \"Firefox\"\n"
    "    try\n"
    "        set t to name of front window\n"
    "        return \"firefox://active|||\" & t\n"
    "    on error\n"
    "        return \"firefox://active|||Firefox\"\n"
    "    end try\n"
    "end tell";

constexpr std::string_view kArc =
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

constexpr std::string_view kOrion =
    "tell application \"Orion\"\n"
    "    try\n"
    "        set u to URL of current tab of front window\n"
    "        set t to name of current tab of front window\n"
    "        return u & \"|||\" & t\n"
    "    on error\n"
    "        return \"about:blank|||Orion\"\n"
    "    end try\n"
    "end tell";

std::string chromiumFamily(std::string_view name) {
    std::string text = "tell application \"";
    text += name;
    text +=
        "\"\n"
        "    try\n"
        "        set u to URL of active tab of first window\n"
        "        set t to title of active tab of first window\n"
        "        return u & \"|||\" & t\n"
        "    on error\n"
        "        return \"about:blank|||";
    text += name;
    text +=
        "\"\n"
        "    end try\n"
        "end tell";
    return text;
}

}  // namespace

std::optional<BrowserScript> recogniseBrowserScript(std::string_view source) {
    using Kind = BrowserScript::Kind;
    if (source == kSafari)
        return BrowserScript{Kind::safari, "Safari"};
    if (source == kFirefox)
        return BrowserScript{Kind::firefox, "Firefox"};
    if (source == kArc)
        return BrowserScript{Kind::arc, "Arc"};
    if (source == kOrion)
        return BrowserScript{Kind::orion, "Orion"};

    constexpr std::string_view opening = "tell application \"";
    if (source.substr(0, opening.size()) != opening)
        return std::nullopt;
    const auto lineEnd = source.find('\n');
    if (lineEnd == std::string_view::npos || lineEnd < opening.size() + 1 || source[lineEnd - 1] != '"') {
        return std::nullopt;
    }
    const auto name = source.substr(opening.size(), lineEnd - 1 - opening.size());
    if (source != chromiumFamily(name))
        return std::nullopt;
    return BrowserScript{Kind::chromiumFamily, std::string(name)};
}

}  // namespace larkspan
