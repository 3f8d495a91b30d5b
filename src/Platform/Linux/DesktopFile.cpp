// Desktop entry parsing. Only the `[Desktop Entry]` group is read; other groups (actions) are
// skipped but must still be well-formed lines, as strict readers such as GLib's demand.
#include "Platform/Linux/DesktopFile.h"

#include <map>

#include "Platform/Linux/TextEncoding.h"

namespace larkspan {
namespace {

std::string_view trimmed(std::string_view text) {
    const auto isSpace = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

// Undoes the escapes of the `string` and `localestring` types: \s \n \t \r \\.
std::string unescaped(std::string_view value) {
    std::string out;
    out.reserve(value.size());
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            out.push_back(value[i]);
            continue;
        }
        switch (value[++i]) {
            case 's':
                out.push_back(' ');
                break;
            case 'n':
                out.push_back('\n');
                break;
            case 't':
                out.push_back('\t');
                break;
            case 'r':
                out.push_back('\r');
                break;
            case '\\':
                out.push_back('\\');
                break;
            default:
                out.push_back('\\');
                out.push_back(value[i]);
        }
    }
    return out;
}

}  // namespace

std::optional<DesktopFile> parseDesktopFile(std::string_view text,
                                            const std::vector<std::string>& localeKeys) {
    if (text.find('\0') != std::string_view::npos)
        return std::nullopt;
    std::map<std::string, std::string, std::less<>> entry;  // keys of [Desktop Entry], raw values
    bool inEntry = false;
    bool sawEntry = false;
    std::size_t start = 0;
    while (start < text.size()) {
        auto end = text.find('\n', start);
        if (end == std::string_view::npos)
            end = text.size();
        const auto line = trimmed(text.substr(start, end - start));
        start = end + 1;
        if (line.empty() || line.front() == '#')
            continue;
        if (line.front() == '[') {
            if (line.back() != ']')
                return std::nullopt;
            const auto group = line.substr(1, line.size() - 2);
            // The entry group comes once; a second one makes the file ambiguous.
            if (group == "Desktop Entry" && sawEntry)
                return std::nullopt;
            inEntry = group == "Desktop Entry";
            sawEntry = sawEntry || inEntry;
            continue;
        }
        const auto equals = line.find('=');
        if (equals == std::string_view::npos || trimmed(line.substr(0, equals)).empty())
            return std::nullopt;
        if (!inEntry)
            continue;
        const auto key = std::string(trimmed(line.substr(0, equals)));
        // The first occurrence of a key wins, as in GLib.
        entry.emplace(key, std::string(trimmed(line.substr(equals + 1))));
    }
    if (!sawEntry)
        return std::nullopt;

    const auto value = [&entry](std::string_view key) -> const std::string* {
        auto it = entry.find(key);
        return it == entry.end() ? nullptr : &it->second;
    };
    const auto flag = [&value](std::string_view key) {
        const auto* v = value(key);
        return v && *v == "true";
    };

    DesktopFile file;
    file.hidden = flag("Hidden");
    if (file.hidden)
        return file;

    const auto* type = value("Type");
    if (!type || *type != "Application")
        return std::nullopt;

    const std::string* name = nullptr;
    for (const auto& key : localeKeys) {
        name = value("Name[" + key + "]");
        if (name && !name->empty() && isValidUtf8(*name))
            break;
        name = nullptr;
    }
    if (!name)
        name = value("Name");
    if (!name || name->empty() || !isValidUtf8(*name))
        return std::nullopt;

    file.name = unescaped(*name);
    if (const auto* wmClass = value("StartupWMClass"))
        file.startupWMClass = unescaped(*wmClass);
    if (const auto* flatpak = value("X-Flatpak"))
        file.flatpakID = *flatpak;
    file.noDisplay = flag("NoDisplay");
    return file;
}

}  // namespace larkspan
