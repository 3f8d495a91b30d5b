#include "Platform/Linux/BrowserHostManifests.h"

#include <gtest/gtest.h>

#include <fstream>
#include <nlohmann/json.hpp>

#include "TempDir.h"

namespace larkspan {
namespace {

namespace fs = std::filesystem;

TEST(BrowserHostManifests, EachBrowserFindsTheHostAndOnlyLarkspansExtensionMayStartIt) {
    test::TempDir dir;
    const UserFolders folders{dir / "home", dir / "config"};
    const fs::path host = dir / "bin" / "larkspan-browser-host";
    const auto installed = installHostManifests(folders, host);
    ASSERT_TRUE(installed.ok);

    const std::vector<std::pair<fs::path, bool>> expected = {
        {dir / "home/.mozilla/native-messaging-hosts", true},
        {dir / "config/chromium/NativeMessagingHosts", false},
        {dir / "config/google-chrome/NativeMessagingHosts", false},
        {dir / "config/BraveSoftware/Brave-Browser/NativeMessagingHosts", false},
        {dir / "config/microsoft-edge/NativeMessagingHosts", false},
        {dir / "config/vivaldi/NativeMessagingHosts", false},
    };
    for (const auto& [folder, gecko] : expected) {
        std::ifstream file(folder / "org.larkspan.browser_bridge.json");
        const auto manifest = nlohmann::json::parse(file, nullptr, false);
        ASSERT_TRUE(manifest.is_object()) << folder;
        EXPECT_EQ(manifest["name"], "org.larkspan.browser_bridge");
        EXPECT_EQ(manifest["path"], host.string());
        EXPECT_EQ(manifest["type"], "stdio");
        EXPECT_EQ(gecko ? manifest["allowed_extensions"] : manifest["allowed_origins"],
                  nlohmann::json::array({gecko ? kGeckoExtensionID : kChromiumExtensionOrigin}))
            << folder;
    }

    EXPECT_TRUE(uninstallHostManifests(folders).ok);
    for (const auto& [folder, gecko] : expected)
        EXPECT_TRUE(fs::is_empty(folder)) << folder;
}

}  // namespace
}  // namespace larkspan
