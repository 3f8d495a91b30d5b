#include "Platform/Linux/SessionEnvironment.h"

#include <gtest/gtest.h>

#include <map>

namespace larkspan {
namespace {

using Keys = std::vector<std::string>;

SessionEnvironment environmentOf(const std::map<std::string, std::string>& variables) {
    return SessionEnvironment::from([&](const char* name) -> const char* {
        auto it = variables.find(name);
        return it == variables.end() ? nullptr : it->second.c_str();
    });
}

TEST(SessionEnvironment, LocaleKeysFollowGettextPrecedence) {
    // LC_ALL over LC_MESSAGES over LANG; encodings dropped; modifier variants first.
    EXPECT_EQ(messageLocaleKeys("", "de_AT.UTF-8@euro", "fr_FR", "en_US"),
              (Keys{"de_AT@euro", "de_AT", "de@euro", "de"}));
    EXPECT_EQ(messageLocaleKeys("", "", "fr_FR.UTF-8", "en_US"), (Keys{"fr_FR", "fr"}));
    EXPECT_EQ(messageLocaleKeys("", "", "", "pt_BR.UTF-8"), (Keys{"pt_BR", "pt"}));
    // LANGUAGE is a priority list over the locale, without duplicates...
    EXPECT_EQ(messageLocaleKeys("sv:de_DE:de", "", "", "en_GB.UTF-8"), (Keys{"sv", "de_DE", "de"}));
    // ...but ignored when the locale is C, which reads untranslated text.
    EXPECT_EQ(messageLocaleKeys("de", "C.UTF-8", "", "de_DE.UTF-8"), Keys{});
    EXPECT_EQ(messageLocaleKeys("::", "POSIX", "", ""), Keys{});
}

TEST(SessionEnvironment, ApplicationFoldersAndSessionType) {
    auto env = environmentOf({{"HOME", "/home/ada"}, {"DISPLAY", ":1"}, {"XDG_SESSION_TYPE", "x11"}});
    EXPECT_FALSE(env.wayland);
    EXPECT_EQ(env.applicationDirs,
              (std::vector<std::filesystem::path>{"/home/ada/.local/share/applications",
                                                  "/usr/local/share/applications", "/usr/share/applications",
                                                  "/home/ada/.local/share/flatpak/exports/share/applications",
                                                  "/var/lib/flatpak/exports/share/applications"}));

    // Explicit folders; relative entries are ignored; Flatpak exports already listed stay in place.
    env = environmentOf({{"XDG_DATA_HOME", "/data"},
                         {"XDG_DATA_DIRS", "relative:/var/lib/flatpak/exports/share:/usr/share/"},
                         {"WAYLAND_DISPLAY", "wayland-0"}});
    EXPECT_TRUE(env.wayland);
    EXPECT_EQ(env.applicationDirs,
              (std::vector<std::filesystem::path>{
                  "/data/applications", "/var/lib/flatpak/exports/share/applications",
                  "/usr/share/applications", "/data/flatpak/exports/share/applications"}));
    EXPECT_TRUE(environmentOf({{"XDG_SESSION_TYPE", "wayland"}}).wayland);
}

}  // namespace
}  // namespace larkspan
