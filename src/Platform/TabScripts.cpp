#include "Platform/TabScripts.h"

namespace larkspan {

std::string chromiumFamilyTabScript(std::string_view applicationName) {
    std::string text = "tell application \"";
    text += applicationName;
    text +=
        "\"\n"
        "    try\n"
        "        set u to URL of active tab of first window\n"
        "        set t to title of active tab of first window\n"
        "        return u & \"|||\" & t\n"
        "    on error\n"
        "        return \"about:blank|||";
    text += applicationName;
    text +=
        "\"\n"
        "    end try\n"
        "end tell";
    return text;
}

// Recognition by exact text: the tracker's scripts are fixed, so anything else is not ours.
std::optional<TabScript> recogniseTabScript(std::string_view source) {
    using Kind = TabScript::Kind;
    if (source == kSafariTabScript)
        return TabScript{Kind::safari, "Safari"};
    if (source == kFirefoxTabScript)
        return TabScript{Kind::firefox, "Firefox"};
    if (source == kArcTabScript)
        return TabScript{Kind::arc, "Arc"};
    if (source == kOrionTabScript)
        return TabScript{Kind::orion, "Orion"};

    constexpr std::string_view opening = "tell application \"";
    if (source.substr(0, opening.size()) != opening)
        return std::nullopt;
    const auto lineEnd = source.find('\n');
    if (lineEnd == std::string_view::npos || lineEnd < opening.size() + 1 || source[lineEnd - 1] != '"') {
        return std::nullopt;
    }
    const auto name = source.substr(opening.size(), lineEnd - 1 - opening.size());
    if (source != chromiumFamilyTabScript(name))
        return std::nullopt;
    return TabScript{Kind::chromiumFamily, std::string(name)};
}

}  // namespace larkspan
