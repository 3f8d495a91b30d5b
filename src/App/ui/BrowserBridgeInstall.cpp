#include "App/ui/BrowserBridgeInstall.h"

#include <cstdio>
#include <filesystem>

#include "Platform/Linux/BrowserHostManifests.h"

namespace larkspan {

int changeBrowserBridge(bool install) {
    const auto folders = UserFolders::fromEnvironment();
    if (folders.home.empty()) {
        std::fputs("Larkspan: HOME is not set, so there is no place for the browsers' manifests.\n", stderr);
        return 1;
    }
    ManifestChange change;
    if (install) {
        std::error_code error;
        const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
        const auto host = error ? std::nullopt : findBridgeHost(self.parent_path());
        if (!host) {
            std::fprintf(stderr, "Larkspan: %s is not installed beside this program.\n",
                         std::string(kBridgeHostProgram).c_str());
            return 1;
        }
        change = installHostManifests(folders, *host);
    } else {
        change = uninstallHostManifests(folders);
    }
    for (const auto& line : change.lines)
        std::printf("%s\n", line.c_str());
    return change.ok ? 0 : 1;
}

}  // namespace larkspan
