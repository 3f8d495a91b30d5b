// Application identity from window and process clues.
#include "Platform/Linux/AppIdentity.h"

#include "Platform/Linux/CanonicalIdentifiers.h"

namespace larkspan {

namespace fs = std::filesystem;

namespace {

// "org.kde.dolphin", "org.kde.dolphin.desktop" or "/usr/share/applications/org.kde.dolphin.desktop"
// → "org.kde.dolphin".
std::string desktopIDFromFile(const std::string& file) {
    auto name = fs::path(file).filename().string();
    constexpr std::string_view suffix = ".desktop";
    if (name.size() > suffix.size() &&
        name.compare(name.size() - suffix.size(), suffix.size(), suffix) == 0) {
        name.resize(name.size() - suffix.size());
    }
    return name;
}

std::optional<DesktopEntry> lookUp(const DesktopEntries& entries, const std::string& id) {
    if (id.empty())
        return std::nullopt;
    return entries.byID(id);
}

}  // namespace

AppIdentity::AppIdentity(std::shared_ptr<DesktopEntries> entries, fs::path procRoot)
    : entries_(std::move(entries)), procRoot_(std::move(procRoot)) {}

RunningApplication AppIdentity::identify(const WindowClues& window) const {
    entries_->refreshIfChanged();
    return resolve(window, readProcessClues(window.pid, procRoot_), *entries_);
}

RunningApplication AppIdentity::resolve(const WindowClues& window, const ProcessClues& process,
                                        const DesktopEntries& entries) {
    RunningApplication app;
    app.pid = window.pid;

    const std::string snapDesktopID =
        process.snapName.empty() ? "" : process.snapName + "_" + process.snapApp;
    std::optional<DesktopEntry> entry = lookUp(entries, window.gtkApplicationID);
    if (!entry)
        entry = lookUp(entries, desktopIDFromFile(window.kdeDesktopFile));
    if (!entry)
        entry = lookUp(entries, process.flatpakID);
    if (!entry)
        entry = lookUp(entries, snapDesktopID);
    if (!entry && !process.gioDesktopFile.empty())
        entry = lookUp(entries, desktopIDFromFile(process.gioDesktopFile));
    const auto byClass = entries.byWindowClass(window.wmInstance, window.wmClass);
    if (!entry) {
        entry = lookUp(entries, process.systemdAppID);
        if (entry && byClass && byClass->id != entry->id)
            entry = byClass;
    }
    if (!entry)
        entry = byClass;

    if (entry) {
        app.localizedName = entry->name;
        // A snap's desktop id is "<snap>_<app>"; the table knows the product by its app name.
        auto canonical = canonicalIdentifier(entry->id);
        if (!canonical && entry->id == snapDesktopID)
            canonical = canonicalIdentifier(process.snapApp);
        if (!canonical && !entry->flatpakID.empty())
            canonical = canonicalIdentifier(entry->flatpakID);
        app.bundleID = canonical ? *canonical : entry->id;
        return app;
    }

    if (!window.wmClass.empty())
        app.localizedName = window.wmClass;
    for (const auto* key : {&process.flatpakID, &process.snapApp, &window.wmClass}) {
        if (auto canonical = key->empty() ? std::nullopt : canonicalIdentifier(*key)) {
            app.bundleID = *canonical;
            return app;
        }
    }
    if (!process.flatpakID.empty()) {
        app.bundleID = process.flatpakID;
    } else if (!window.wmClass.empty()) {
        app.bundleID = window.wmClass;
    }
    return app;
}

}  // namespace larkspan
