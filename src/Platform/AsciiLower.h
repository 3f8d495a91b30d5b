// ASCII-only case folding for matching text against lower-case ASCII keywords and patterns. Every
// keyword of the rule tables is ASCII, so folding A-Z is enough; all other bytes (UTF-8 sequences,
// invalid bytes, NUL) pass unchanged, which makes any text safe input.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace larkspan {

constexpr char asciiLower(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

// Whether `text` equals `lower` once A-Z are folded; `lower` must be lower case already.
constexpr bool equalsAsciiLower(std::string_view text, std::string_view lower) {
    if (text.size() != lower.size())
        return false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (asciiLower(text[i]) != lower[i])
            return false;
    }
    return true;
}

// Whether `text` begins with `lower` at `pos` once A-Z are folded; false when `pos` is past the end.
constexpr bool hasAsciiLowerAt(std::string_view text, std::size_t pos, std::string_view lower) {
    return pos <= text.size() && equalsAsciiLower(text.substr(pos, lower.size()), lower);
}

// The ASCII lower-cased copy of a text. Names, domains and titles of ordinary length live in an
// inline buffer, so matching them allocates nothing; longer texts go to the heap. Not copyable,
// since `view()` may point into the object itself.
class AsciiLower {
public:
    explicit AsciiLower(std::string_view text) {
        char* out = inline_.data();
        if (text.size() > inline_.size()) {
            heap_.resize(text.size());
            out = heap_.data();
        }
        for (std::size_t i = 0; i < text.size(); ++i)
            out[i] = asciiLower(text[i]);
        view_ = std::string_view(out, text.size());
    }
    AsciiLower(const AsciiLower&) = delete;
    AsciiLower& operator=(const AsciiLower&) = delete;

    std::string_view view() const { return view_; }
    bool contains(std::string_view needle) const { return view_.find(needle) != std::string_view::npos; }

private:
    std::array<char, 256> inline_;
    std::string heap_;
    std::string_view view_;
};

}  // namespace larkspan
