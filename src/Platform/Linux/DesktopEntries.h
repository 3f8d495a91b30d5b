// The index of installed applications: every desktop entry in the XDG `applications` folders,
// looked up by desktop id or by window class. Built once and rebuilt only when a folder changes;
// a folder check costs a few `stat` calls and runs at most once per `checkInterval`, so lookups on
// the capture path never touch the disk otherwise. Safe to use from any thread.
#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace larkspan {

struct DesktopEntry {
    std::string id;              // desktop id without ".desktop": "org.gnome.Terminal", "kde-okular"
    std::string name;            // localized `Name`
    std::string startupWMClass;  // empty when absent
    std::string flatpakID;       // empty unless exported by Flatpak
    bool noDisplay = false;
    bool operator==(const DesktopEntry&) const = default;
};

class DesktopEntries {
public:
    // `dirs` most important first: an id found in an earlier folder hides the same id further down.
    DesktopEntries(std::vector<std::filesystem::path> dirs, std::vector<std::string> localeKeys,
                   std::chrono::milliseconds checkInterval = std::chrono::seconds(5));
    ~DesktopEntries();
    DesktopEntries(const DesktopEntries&) = delete;
    DesktopEntries& operator=(const DesktopEntries&) = delete;

    // The entry with exactly this desktop id ("firefox", not "firefox.desktop"), else the only
    // entry whose id matches ignoring ASCII case.
    std::optional<DesktopEntry> byID(std::string_view id) const;

    // The entry a window of this WM_CLASS belongs to: instance, then class, against each entry's
    // `StartupWMClass` (ignoring case, an exact-case and a visible entry preferred); then against
    // desktop ids, exact and ignoring case; then the one id ending in ".<class>" ignoring case
    // ("org.gnome.Nautilus" for "nautilus"). Nothing when no rule finds exactly one entry.
    std::optional<DesktopEntry> byWindowClass(std::string_view instance, std::string_view wmClass) const;

    std::size_t size() const;

    // Rebuilds the index when a folder appeared, vanished or changed since the last build. Checks
    // at most once per `checkInterval`; cheap otherwise. Any thread.
    void refreshIfChanged();

private:
    struct Index;
    struct FolderStamp {
        std::filesystem::path path;
        bool exists = false;
        std::filesystem::file_time_type modified;
        bool operator==(const FolderStamp&) const = default;
    };

    std::shared_ptr<const Index> snapshot() const;
    std::shared_ptr<const Index> build(std::vector<FolderStamp>& stamps) const;
    static std::vector<FolderStamp> stamp(const std::vector<std::filesystem::path>& folders);

    const std::vector<std::filesystem::path> dirs_;
    const std::vector<std::string> localeKeys_;
    const std::chrono::milliseconds checkInterval_;

    mutable std::mutex indexMutex_;
    std::shared_ptr<const Index> index_;

    std::mutex refreshMutex_;          // one rebuild at a time; guards the fields below
    std::vector<FolderStamp> stamps_;  // every folder scanned, subfolders included
    std::chrono::steady_clock::time_point lastCheck_;
};

// ASCII lower case; desktop ids and window classes are ASCII in practice.
std::string asciiLower(std::string_view text);

}  // namespace larkspan
