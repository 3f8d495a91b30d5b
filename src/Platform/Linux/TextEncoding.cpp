// Byte-level decoders. Kept free of any X header so that they can be tested without a display.
#include "Platform/Linux/TextEncoding.h"

#include <cstdint>

namespace larkspan {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

// Length of the well-formed UTF-8 sequence at `text[at]`, or 0 when it is ill-formed.
std::size_t sequenceLength(std::string_view text, std::size_t at) {
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
    const std::uint8_t lead = byte(at);
    if (lead < 0x80)
        return 1;
    std::size_t length = 0;
    std::uint8_t low = 0x80;
    std::uint8_t high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        if (lead == 0xE0)
            low = 0xA0;  // overlong
        if (lead == 0xED)
            high = 0x9F;  // surrogates
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        if (lead == 0xF0)
            low = 0x90;  // overlong
        if (lead == 0xF4)
            high = 0x8F;  // above U+10FFFF
    } else {
        return 0;
    }
    if (at + length > text.size())
        return 0;
    if (byte(at + 1) < low || byte(at + 1) > high)
        return 0;
    for (std::size_t i = 2; i < length; ++i) {
        if (byte(at + i) < 0x80 || byte(at + i) > 0xBF)
            return 0;
    }
    return length;
}

void appendLatin1(std::string& out, unsigned char c) {
    if (c == 0)
        return;
    if (c < 0x80) {
        out.push_back(static_cast<char>(c));
    } else {
        out.push_back(static_cast<char>(0xC0 | (c >> 6)));
        out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
    }
}

}  // namespace

bool isValidUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const auto length = sequenceLength(text, at);
        if (length == 0)
            return false;
        at += length;
    }
    return true;
}

std::string sanitizedUtf8(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const auto length = sequenceLength(text, at);
        if (length == 0) {
            out += kReplacement;
            ++at;
        } else {
            if (text[at] != '\0')
                out.append(text.substr(at, length));
            at += length;
        }
    }
    return out;
}

std::string latin1ToUtf8(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (char c : text)
        appendLatin1(out, static_cast<unsigned char>(c));
    return out;
}

std::string compoundTextToUtf8(std::string_view text) {
    std::string out;
    // What the right half (bytes 0xA0-0xFF) stands for: Latin-1 unless another set was designated.
    bool rightIsLatin1 = true;
    bool leftIsAscii = true;
    for (std::size_t at = 0; at < text.size();) {
        const char c = text[at];
        if (c != '\x1B') {
            const auto u = static_cast<unsigned char>(c);
            const bool right = u >= 0xA0;
            if (u < 0x20 || (u >= 0x80 && u < 0xA0)) {
                if (c == '\n' || c == '\t')
                    out.push_back(c);
            } else if (right ? rightIsLatin1 : leftIsAscii) {
                appendLatin1(out, u);
            } else {
                out += kReplacement;
            }
            ++at;
            continue;
        }
        const auto rest = text.substr(at);
        if (rest.substr(0, 3) == "\x1B%G") {
            // A UTF-8 segment runs to ESC % @ or to the end of the text.
            auto end = text.find("\x1B%@", at + 3);
            if (end == std::string_view::npos)
                end = text.size();
            out += sanitizedUtf8(text.substr(at + 3, end - at - 3));
            at = end == text.size() ? end : end + 3;
        } else if (rest.substr(0, 3) == "\x1B(B") {
            leftIsAscii = true;
            at += 3;
        } else if (rest.substr(0, 3) == "\x1B-A") {
            rightIsLatin1 = true;
            at += 3;
        } else {
            // Another designation or control sequence: skip its intermediate bytes (0x20-0x2F) and
            // final byte; text in that set then shows as replacement characters.
            std::size_t end = at + 1;
            while (end < text.size() && static_cast<unsigned char>(text[end]) >= 0x20 &&
                   static_cast<unsigned char>(text[end]) <= 0x2F) {
                ++end;
            }
            if (end < text.size())
                ++end;
            const auto sequence = text.substr(at, end - at);
            if (sequence.size() >= 2 && (sequence[1] == '(' || sequence[1] == '$'))
                leftIsAscii = false;
            if (sequence.size() >= 2 && (sequence[1] == '-' || sequence[1] == ')'))
                rightIsLatin1 = false;
            at = end;
        }
    }
    return out;
}

}  // namespace larkspan
