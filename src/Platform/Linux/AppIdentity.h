// Which application a window belongs to, as a stable identifier and a display name. X11 has no
// application object: the answer is pieced together from window properties, the owning process and
// the installed desktop entries, most reliable clue first, then mapped to the identifier the rest
// of the system knows the product by (see CanonicalIdentifiers.h).
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "Platform/Linux/DesktopEntries.h"
#include "Platform/Linux/ProcessClues.h"
#include "Platform/Workspace.h"

namespace larkspan {

// What X says about a window; already decoded to UTF-8, empty when absent. For a dialog these are
// the properties of the main window it is transient for.
struct WindowClues {
    std::string gtkApplicationID{};  // _GTK_APPLICATION_ID
    std::string kdeDesktopFile{};    // _KDE_NET_WM_DESKTOP_FILE: an id or a path
    std::string wmInstance{};        // WM_CLASS, first string
    std::string wmClass{};           // WM_CLASS, second string
    std::int64_t pid = 0;            // _NET_WM_PID; 0 when absent
    bool operator==(const WindowClues&) const = default;
};

class AppIdentity {
public:
    explicit AppIdentity(std::shared_ptr<DesktopEntries> entries, std::filesystem::path procRoot = "/proc");

    // The application of a window: reads the process clues of `window.pid`, refreshes the desktop
    // index when its folders changed, then `resolve`s. Any thread.
    RunningApplication identify(const WindowClues& window) const;

    // The resolution order, pure. The desktop entry is the first found of: _GTK_APPLICATION_ID,
    // _KDE_NET_WM_DESKTOP_FILE, the Flatpak id, the snap, GIO's launched desktop file, the systemd
    // app unit (unless WM_CLASS names another entry: a unit is inherited by everything started from
    // a terminal), then WM_CLASS. The identifier is the canonical one for that entry, else its desktop
    // id; without an entry, the canonical one or the Flatpak id or the WM_CLASS class; else absent.
    // The name is the entry's localized `Name`, else the WM_CLASS class, else absent.
    static RunningApplication resolve(const WindowClues& window, const ProcessClues& process,
                                      const DesktopEntries& entries);

    const DesktopEntries& entries() const { return *entries_; }

private:
    std::shared_ptr<DesktopEntries> entries_;
    std::filesystem::path procRoot_;
};

}  // namespace larkspan
