// Starting Larkspan at login through an XDG autostart entry,
// $XDG_CONFIG_HOME/autostart/org.larkspan.Larkspan.desktop. The entry's presence is the setting: a
// person who deletes the file by hand finds the switch off. Only that one file is ever written or
// removed; a hand-edited entry is left as it is until the person flips the switch.
//
// An installed Larkspan offers itself once, at its first launch, and says so in a notification;
// once the offer was made, or the person turned the switch off, it never adds itself again.
//
// Threads: main thread only. Every failure comes back as a sentence for the person; nothing throws.
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "Platform/KeyValueStore.h"
#include "Platform/Notifier.h"

namespace larkspan {

// The id shared by the desktop entry, the icon, the AppStream data and the autostart entry.
inline constexpr std::string_view kApplicationID = "org.larkspan.Larkspan";
// Settings key: 1 once the first-launch offer was made or the person turned the switch off.
inline constexpr std::string_view kAutostartOfferedKey = "autostartOffered";

// Where the entry lives. `lookup` returns a variable's value or nullptr, as getenv does; a relative
// XDG_CONFIG_HOME is ignored, as the base directory rules say. Empty when neither it nor HOME is set.
std::filesystem::path autostartEntryPath(const std::function<const char*(const char*)>& lookup);

// The entry's text for `executable`, an absolute path, quoted for the Exec line whatever characters
// it holds. Nothing when the path cannot be written on one line (a control character).
std::optional<std::string> autostartEntryText(const std::filesystem::path& executable);

// Whether `executable` runs from an installed tree: it sits in <prefix>/bin and the prefix holds
// Larkspan's desktop entry, share/applications/org.larkspan.Larkspan.desktop. A build folder does not.
bool isInstalledExecutable(const std::filesystem::path& executable);

// The running process's executable (/proc/self/exe); empty when it cannot be read.
std::filesystem::path runningExecutable();

class StartAtLogin {
public:
    // `entryPath` from autostartEntryPath(), `executable` the one the entry starts. `settings` must
    // outlive this object.
    StartAtLogin(std::filesystem::path entryPath, std::filesystem::path executable, KeyValueStore& settings);

    const std::filesystem::path& entryPath() const { return entryPath_; }
    bool isOn() const;

    // Writes the entry (replacing one that is there) or removes it. Turning it off is remembered, so
    // no later launch adds it again. Returns why it could not, or nothing when it worked.
    std::optional<std::string> set(bool on);

    // The first launch of an installed Larkspan adds the entry and says so through `notifier`; a
    // failure is said there instead. Later launches, and any launch from a build folder, do nothing.
    void offerAtFirstLaunch(bool installed, Notifier& notifier);

    static constexpr std::string_view notificationID = "startAtLogin";

private:
    std::optional<std::string> write();
    std::optional<std::string> remove();

    std::filesystem::path entryPath_;
    std::filesystem::path executable_;
    KeyValueStore& settings_;
};

}  // namespace larkspan
