#include "Platform/Linux/BrowserHostManifests.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>

namespace larkspan {

namespace fs = std::filesystem;

const std::array<BridgeBrowser, 6>& bridgeBrowsers() {
    static const std::array<BridgeBrowser, 6> browsers{{
        {"Firefox", ".mozilla/native-messaging-hosts", true, {"firefox", "firefox-esr", "firefox-bin"}},
        {"Chromium", "chromium/NativeMessagingHosts", false, {"chromium", "chromium-browser", {}}},
        {"Google Chrome", "google-chrome/NativeMessagingHosts", false, {"chrome", {}, {}}},
        {"Brave", "BraveSoftware/Brave-Browser/NativeMessagingHosts", false, {"brave", {}, {}}},
        {"Microsoft Edge", "microsoft-edge/NativeMessagingHosts", false, {"msedge", {}, {}}},
        {"Vivaldi", "vivaldi/NativeMessagingHosts", false, {"vivaldi-bin", "vivaldi", {}}},
    }};
    return browsers;
}

const BridgeBrowser* bridgeBrowserOfProgram(std::string_view program) {
    if (program.empty())
        return nullptr;
    for (const auto& browser : bridgeBrowsers()) {
        if (std::find(browser.programs.begin(), browser.programs.end(), program) != browser.programs.end())
            return &browser;
    }
    return nullptr;
}

UserFolders UserFolders::fromEnvironment() {
    const char* home = std::getenv("HOME");
    if (!home || !*home)
        return {};
    const char* config = std::getenv("XDG_CONFIG_HOME");
    // A relative $XDG_CONFIG_HOME is invalid and ignored.
    const bool configSet = config && *config == '/';
    return {home, configSet ? fs::path(config) : fs::path(home) / ".config"};
}

fs::path hostManifestPath(const BridgeBrowser& browser, const UserFolders& folders) {
    const auto& base = browser.gecko ? folders.home : folders.configHome;
    return base / browser.hostFolder / (std::string(kBridgeHostName) + ".json");
}

std::string hostManifest(const BridgeBrowser& browser, const fs::path& hostPath) {
    nlohmann::ordered_json manifest = {
        {"name", kBridgeHostName},
        {"description", "Larkspan: the active tab for your time tracker"},
        {"path", hostPath.string()},
        {"type", "stdio"},
    };
    if (browser.gecko)
        manifest["allowed_extensions"] = {kGeckoExtensionID};
    else
        manifest["allowed_origins"] = {kChromiumExtensionOrigin};
    return manifest.dump(2) + "\n";
}

std::optional<fs::path> findBridgeHost(const fs::path& executableDir) {
    for (const auto& candidate : {executableDir / kBridgeHostProgram,
                                  executableDir / ".." / "libexec" / "larkspan" / kBridgeHostProgram}) {
        std::error_code error;
        if (fs::is_regular_file(candidate, error))
            return fs::weakly_canonical(candidate, error);
    }
    return std::nullopt;
}

ManifestChange installHostManifests(const UserFolders& folders, const fs::path& hostPath) {
    ManifestChange change;
    for (const auto& browser : bridgeBrowsers()) {
        const auto path = hostManifestPath(browser, folders);
        std::error_code error;
        fs::create_directories(path.parent_path(), error);
        std::ofstream file(path, std::ios::trunc);
        file << hostManifest(browser, hostPath);
        file.close();
        const bool written = !error && file;
        change.ok = change.ok && written;
        change.lines.push_back(std::string(browser.name) + (written ? ": wrote " : ": could not write ") +
                               path.string());
    }
    return change;
}

ManifestChange uninstallHostManifests(const UserFolders& folders) {
    ManifestChange change;
    for (const auto& browser : bridgeBrowsers()) {
        const auto path = hostManifestPath(browser, folders);
        std::error_code error;
        const bool removed = fs::remove(path, error);
        change.ok = change.ok && !error;
        change.lines.push_back(std::string(browser.name) +
                               (error     ? ": could not remove "
                                : removed ? ": removed "
                                          : ": nothing to remove at ") +
                               path.string());
    }
    return change;
}

}  // namespace larkspan
