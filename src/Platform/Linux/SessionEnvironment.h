// What the process environment says about the desktop session: which X display to use, whether
// this is a Wayland session, where desktop entries live, and which languages the user reads.
// Read once at start-up; tests build one by hand instead of touching the real environment.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace larkspan {

struct SessionEnvironment {
    std::string display;         // DISPLAY; empty when unset
    bool wayland = false;        // WAYLAND_DISPLAY set or XDG_SESSION_TYPE=wayland
    std::string waylandDisplay;  // WAYLAND_DISPLAY; empty means the default, "wayland-0"
    // `applications` folders, most important first: $XDG_DATA_HOME, each $XDG_DATA_DIRS, then the
    // Flatpak export folders when XDG_DATA_DIRS does not already name them.
    std::vector<std::filesystem::path> applicationDirs;
    // Keys to try for a localized desktop-entry value, best first ("de_DE@euro", "de_DE", "de@euro", "de").
    std::vector<std::string> localeKeys;

    // `lookup` returns a variable's value or nullptr, as getenv does.
    static SessionEnvironment from(const std::function<const char*(const char*)>& lookup);
    static SessionEnvironment fromProcess();
};

// The message-locale keys for LANGUAGE / LC_ALL / LC_MESSAGES / LANG, as gettext picks them: the
// first set of LC_ALL, LC_MESSAGES, LANG is the locale; LANGUAGE, a colon list, overrides it unless
// the locale is "C" or "POSIX". Encodings (".UTF-8") are dropped; each entry expands to the variants
// of the desktop-entry format, without duplicates. Empty when the user reads untranslated text.
std::vector<std::string> messageLocaleKeys(const std::string& language, const std::string& lcAll,
                                           const std::string& lcMessages, const std::string& lang);

}  // namespace larkspan
