#include "Tracking/BrowserScripts.h"

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

}  // namespace larkspan
