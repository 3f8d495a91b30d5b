// /proc readers and the parsers of their texts. Each file is small (a few KB at most); reads are
// capped so that a hostile environment block cannot slow a capture.
#include "Platform/Linux/ProcessClues.h"

#include <fstream>
#include <vector>

namespace larkspan {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMaxRead = 256 * 1024;  // bytes

std::string readCapped(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return {};
    std::string text(kMaxRead, '\0');
    in.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(in.gcount()));
    return text;
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    std::size_t start = 0;
    for (;;) {
        const auto end = text.find(separator, start);
        parts.push_back(
            text.substr(start, end == std::string_view::npos ? std::string_view::npos : end - start));
        if (end == std::string_view::npos)
            return parts;
        start = end + 1;
    }
}

bool startsWith(std::string_view text, std::string_view prefix) {
    return text.substr(0, prefix.size()) == prefix;
}
bool endsWith(std::string_view text, std::string_view suffix) {
    return text.size() >= suffix.size() && text.substr(text.size() - suffix.size()) == suffix;
}

bool isHex(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

// Whether `text` ends in a UUID (8-4-4-4-12 hex digits).
bool endsWithUUID(std::string_view text) {
    if (text.size() < 36)
        return false;
    const auto uuid = text.substr(text.size() - 36);
    for (std::size_t i = 0; i < uuid.size(); ++i) {
        const bool dash = i == 8 || i == 13 || i == 18 || i == 23;
        if (dash ? uuid[i] != '-' : !isHex(uuid[i]))
            return false;
    }
    return true;
}

// systemd unit-name escapes: "\x2d" stands for '-'.
std::string unescapeUnit(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 3 < text.size() && text[i + 1] == 'x' && isHex(text[i + 2]) &&
            isHex(text[i + 3])) {
            out.push_back(static_cast<char>(std::stoi(std::string(text.substr(i + 2, 2)), nullptr, 16)));
            i += 3;
        } else {
            out.push_back(text[i]);
        }
    }
    return out;
}

// snap.<snap>.<app>[-<uuid>|.<uuid>].scope or snap.<snap>.<app>.service.
void readSnapUnit(std::string_view unit, ProcessClues& clues) {
    auto rest = unit.substr(5);
    rest = rest.substr(0, rest.rfind('.'));  // .scope / .service
    if (endsWithUUID(rest))
        rest.remove_suffix(37);
    const auto parts = split(rest, '.');
    if (parts.size() != 2 || parts[0].empty() || parts[1].empty())
        return;
    clues.snapName = parts[0];
    clues.snapApp = parts[1];
}

// app[-<launcher>]-<id>-<random>.scope or app[-<launcher>]-<id>[@<random>].service.
void readAppUnit(std::string_view unit, ProcessClues& clues) {
    const bool scope = endsWith(unit, ".scope");
    auto rest = unit.substr(4, unit.rfind('.') - 4);
    if (!scope)
        rest = rest.substr(0, rest.find('@'));
    auto parts = split(rest, '-');
    if (scope)
        parts.pop_back();
    if (parts.empty() || parts.size() > 2 || parts.back().empty())
        return;
    clues.systemdAppID = unescapeUnit(parts.back());
}

}  // namespace

std::string flatpakApplicationName(std::string_view flatpakInfo) {
    bool inApplication = false;
    for (auto line : split(flatpakInfo, '\n')) {
        if (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        if (startsWith(line, "[")) {
            inApplication = line == "[Application]";
        } else if (inApplication && startsWith(line, "name=")) {
            return std::string(line.substr(5));
        }
    }
    return {};
}

void readCgroupClues(std::string_view cgroup, ProcessClues& clues) {
    for (auto line : split(cgroup, '\n')) {
        const auto slash = line.rfind('/');
        if (slash == std::string_view::npos)
            continue;
        const auto unit = line.substr(slash + 1);
        if (!endsWith(unit, ".scope") && !endsWith(unit, ".service"))
            continue;
        if (startsWith(unit, "snap.") && clues.snapName.empty())
            readSnapUnit(unit, clues);
        if (startsWith(unit, "app-") && clues.systemdAppID.empty())
            readAppUnit(unit, clues);
    }
}

std::string gioLaunchedDesktopFile(std::string_view environ, std::int64_t pid) {
    std::string_view file;
    std::string_view launchedPid;
    for (auto entry : split(environ, '\0')) {
        if (startsWith(entry, "GIO_LAUNCHED_DESKTOP_FILE="))
            file = entry.substr(26);
        if (startsWith(entry, "GIO_LAUNCHED_DESKTOP_FILE_PID="))
            launchedPid = entry.substr(30);
    }
    if (file.empty() || launchedPid != std::to_string(pid))
        return {};
    return std::string(file);
}

ProcessClues readProcessClues(std::int64_t pid, const fs::path& procRoot) {
    ProcessClues clues;
    if (pid <= 0)
        return clues;
    const auto dir = procRoot / std::to_string(pid);
    clues.flatpakID = flatpakApplicationName(readCapped(dir / "root/.flatpak-info"));
    readCgroupClues(readCapped(dir / "cgroup"), clues);
    clues.gioDesktopFile = gioLaunchedDesktopFile(readCapped(dir / "environ"), pid);
    return clues;
}

}  // namespace larkspan
