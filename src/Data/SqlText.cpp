#include "Data/SqlText.h"

#include <charconv>
#include <cmath>

namespace larkspan {

std::string escapeQuotes(std::string_view text) {
    text = text.substr(0, text.find('\0'));
    std::string escaped;
    escaped.reserve(text.size());
    for (char c : text) {
        if (c == '\'')
            escaped.push_back('\'');
        escaped.push_back(c);
    }
    return escaped;
}

std::string sqlNumber(double value) {
    if (std::isnan(value))
        return "NULL";
    if (std::isinf(value))
        return value > 0 ? "9e999" : "-9e999";
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, result.ptr);
}

}  // namespace larkspan
