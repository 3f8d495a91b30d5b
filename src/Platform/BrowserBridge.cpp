#include "Platform/BrowserBridge.h"

#include <array>

#include "Platform/TrimBlanks.h"

namespace larkspan {

namespace {

// Hyphen-minus, en dash and em dash, each between spaces.
constexpr std::array<std::string_view, 3> kNameSeparators = {" - ", " \u2013 ", " \u2014 "};

}  // namespace

bool tabTitleAgrees(std::string_view tabTitle, std::string_view windowTitle) {
    tabTitle = trimBlanks(tabTitle);
    windowTitle = trimBlanks(windowTitle);
    if (tabTitle.empty() || !windowTitle.starts_with(tabTitle))
        return false;
    const auto rest = windowTitle.substr(tabTitle.size());
    if (rest.empty())
        return true;
    for (auto separator : kNameSeparators) {
        if (rest.starts_with(separator))
            return true;
    }
    return false;
}

}  // namespace larkspan
