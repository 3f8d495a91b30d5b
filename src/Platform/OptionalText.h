// Optional text is absent, empty or present with text; many rules treat the first two alike and
// must still keep them apart in storage and comparison.
#pragma once

#include <optional>
#include <string>

namespace larkspan {

// Present and not empty.
inline bool hasText(const std::optional<std::string>& text) {
    return text && !text->empty();
}

}  // namespace larkspan
