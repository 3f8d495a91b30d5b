// Recognition by exact text: the tracker's scripts are fixed, so anything else is not ours.
#include "Platform/Linux/BrowserScript.h"

#include "Tracking/BrowserScripts.h"

namespace larkspan {

std::optional<BrowserScript> recogniseBrowserScript(std::string_view source) {
    using Kind = BrowserScript::Kind;
    if (source == kSafariTabScript)
        return BrowserScript{Kind::safari, "Safari"};
    if (source == kFirefoxTabScript)
        return BrowserScript{Kind::firefox, "Firefox"};
    if (source == kArcTabScript)
        return BrowserScript{Kind::arc, "Arc"};
    if (source == kOrionTabScript)
        return BrowserScript{Kind::orion, "Orion"};

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
    return BrowserScript{Kind::chromiumFamily, std::string(name)};
}

}  // namespace larkspan
