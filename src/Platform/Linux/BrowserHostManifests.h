// Where each browser looks for native messaging hosts, and the manifests that let Larkspan's
// extension start larkspan-browser-host. Chromium-family browsers read
// $XDG_CONFIG_HOME/<browser>/NativeMessagingHosts and name the extension by its origin; Firefox
// reads ~/.mozilla/native-messaging-hosts and names it by its add-on id.
#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace larkspan {

inline constexpr std::string_view kBridgeHostName = "org.larkspan.browser_bridge";
inline constexpr std::string_view kBridgeHostProgram = "larkspan-browser-host";
// The extension's fixed ids: derived from the public key in its manifest, and its add-on id.
inline constexpr std::string_view kChromiumExtensionOrigin =
    "chrome-extension://kogebcfkjebpmeebknnlfpjdkokmfkgh/";
inline constexpr std::string_view kGeckoExtensionID = "browser-bridge@larkspan.org";

struct BridgeBrowser {
    std::string_view name;                     // as the user knows it
    std::string_view hostFolder;               // relative to $XDG_CONFIG_HOME, or to $HOME for Firefox
    bool gecko;                                // Firefox's manifest and folder
    std::array<std::string_view, 3> programs;  // file names of its executable; empty ones unused
};

// Firefox, Chromium, Google Chrome, Brave, Microsoft Edge and Vivaldi, in that order.
const std::array<BridgeBrowser, 6>& bridgeBrowsers();
// The browser whose executable is called `program`; nothing for any other.
const BridgeBrowser* bridgeBrowserOfProgram(std::string_view program);

struct UserFolders {
    std::filesystem::path home;
    std::filesystem::path configHome;  // $XDG_CONFIG_HOME, or ~/.config
    // From $HOME and $XDG_CONFIG_HOME; empty paths when $HOME is not set.
    static UserFolders fromEnvironment();
};

std::filesystem::path hostManifestPath(const BridgeBrowser& browser, const UserFolders& folders);
// The manifest's JSON text for `browser`, naming the host at `hostPath`.
std::string hostManifest(const BridgeBrowser& browser, const std::filesystem::path& hostPath);

// The host installed with the tracker whose executable lies in `executableDir`: beside it (the
// build tree), else in ../libexec/larkspan (an installed tree). Nothing when neither exists.
std::optional<std::filesystem::path> findBridgeHost(const std::filesystem::path& executableDir);

// Writes every browser's manifest, creating its folder; or removes them. Returns a line per
// browser for the user; `ok` is false when any failed.
struct ManifestChange {
    std::vector<std::string> lines;
    bool ok = true;
};
ManifestChange installHostManifests(const UserFolders& folders, const std::filesystem::path& hostPath);
ManifestChange uninstallHostManifests(const UserFolders& folders);

}  // namespace larkspan
