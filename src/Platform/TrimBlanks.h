// Spaces and tabs around a text, the blanks that scripts and window titles carry by accident.
#pragma once

#include <string_view>

namespace larkspan {

// `text` without the spaces and tabs at both ends.
constexpr std::string_view trimBlanks(std::string_view text) {
    const auto blank = [](char c) { return c == ' ' || c == '\t'; };
    while (!text.empty() && blank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && blank(text.back()))
        text.remove_suffix(1);
    return text;
}

}  // namespace larkspan
