// Maps well-known Linux applications to the reverse-DNS identifier that the classification tables
// and the browser list use for the same product, so that Firefox from a distribution, a Flatpak or
// a tarball is `org.mozilla.firefox` everywhere downstream and classifies like it; the desktop's own
// tools map to the identifier of their role (Platform/AppRoles.h).
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace larkspan {

struct CanonicalIdentifier {
    std::string_view key;         // desktop id or WM_CLASS, lower case
    std::string_view identifier;  // what the rest of the system calls the product
};

// The whole table, in no particular order.
const std::vector<CanonicalIdentifier>& canonicalIdentifiers();

// The identifier for a desktop id or WM_CLASS, compared ignoring ASCII case; nothing when the
// application is not a well-known one.
std::optional<std::string> canonicalIdentifier(std::string_view desktopIDOrClass);

}  // namespace larkspan
