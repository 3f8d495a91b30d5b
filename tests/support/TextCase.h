// ASCII case changes for making test inputs: "GITHUB.COM" and "github.com" from one table entry.
// Written apart from the production folding so that a test never checks the code against itself.
#pragma once

#include <algorithm>
#include <string>

namespace larkspan::test {

inline std::string upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    return text;
}

inline std::string lower(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return text;
}

}  // namespace larkspan::test
