// What a process says about the application it belongs to, read from /proc: its Flatpak id, its
// snap, the desktop file GIO launched it from, and the systemd scope its launcher put it in.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace larkspan {

struct ProcessClues {
    std::string flatpakID{};       // "org.mozilla.firefox"
    std::string snapName{};        // "firefox"
    std::string snapApp{};         // "firefox"; desktop id of a snap app is "<snapName>_<snapApp>"
    std::string gioDesktopFile{};  // path of the desktop file GIO launched this very process from
    std::string systemdAppID{};    // application id of an app-….scope / app-….service unit
    bool operator==(const ProcessClues&) const = default;
};

// Reads /proc/<pid>/root/.flatpak-info, /proc/<pid>/cgroup and /proc/<pid>/environ below
// `procRoot`. Unreadable files (another user's process, a process that ended) leave fields empty.
ProcessClues readProcessClues(std::int64_t pid, const std::filesystem::path& procRoot = "/proc");

// `name` of the `[Application]` group of a .flatpak-info file; empty when absent.
std::string flatpakApplicationName(std::string_view flatpakInfo);

// Snap and systemd unit clues of a /proc/<pid>/cgroup text, into `clues`.
void readCgroupClues(std::string_view cgroup, ProcessClues& clues);

// GIO_LAUNCHED_DESKTOP_FILE of a NUL-separated environment, but only when
// GIO_LAUNCHED_DESKTOP_FILE_PID names `pid`: children inherit the variable and are not that application.
std::string gioLaunchedDesktopFile(std::string_view environ, std::int64_t pid);

}  // namespace larkspan
