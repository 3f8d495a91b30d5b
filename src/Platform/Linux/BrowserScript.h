// Recognition of the five browser scripts the tab tracker sends (their texts are in
// Tracking/BrowserScripts.h). On this desktop no scripting host runs them; each is recognised by its
// exact text and answered by whatever can stand in for its target application.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace larkspan {

struct BrowserScript {
    enum class Kind { safari, firefox, arc, orion, chromiumFamily };
    Kind kind;
    std::string application;  // the name after `tell application`
    bool operator==(const BrowserScript&) const = default;
};

// Which of the five scripts `source` is, byte for byte; the Chromium-family text may name any
// application. Nothing for any other text.
std::optional<BrowserScript> recogniseBrowserScript(std::string_view source);

}  // namespace larkspan
