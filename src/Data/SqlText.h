// Values written into the text of a statement rather than bound. Only a few statements are built
// this way (the fixed ones that carry an id, a time or a short text); the rules here keep their
// values exact and keep any text inside its quote marks.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace larkspan {

// The body of a quoted SQL literal: each "'" doubled. The caller writes the surrounding "'" marks.
// Text ends at its first NUL, as it does on the bound path, so both paths store the same value
// (an embedded NUL would otherwise cut the statement inside the literal).
std::string escapeQuotes(std::string_view text);

// The shortest decimal text that reads back as the same 64-bit float. Infinities are written as
// out-of-range literals SQLite reads as infinite, NaN as NULL (what binding a NaN stores).
std::string sqlNumber(double value);

inline std::string sqlNumber(std::int64_t value) {
    return std::to_string(value);
}
inline std::string sqlNumber(int value) {
    return std::to_string(value);
}

}  // namespace larkspan
