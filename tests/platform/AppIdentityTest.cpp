#include "Platform/Linux/AppIdentity.h"

#include <gtest/gtest.h>

namespace larkspan {
namespace {

namespace fs = std::filesystem;
const fs::path kData = LARKSPAN_PLATFORM_TEST_DATA;

class AppIdentityTest : public ::testing::Test {
protected:
    DesktopEntries entries{{kData / "home/applications", kData / "system/applications",
                            kData / "flatpak/exports/share/applications"},
                           {"de_DE", "de"}};

    RunningApplication resolve(const WindowClues& window, const ProcessClues& process = {}) {
        return AppIdentity::resolve(window, process, entries);
    }
};

std::string idOf(const RunningApplication& app) {
    return app.bundleID.value_or("(none)");
}
std::string nameOf(const RunningApplication& app) {
    return app.localizedName.value_or("(none)");
}

TEST_F(AppIdentityTest, WellKnownApplicationsGetTheirCanonicalIdentifierAndLocalizedName) {
    const auto firefox = resolve({.wmInstance = "Navigator", .wmClass = "firefox", .pid = 10});
    EXPECT_EQ(idOf(firefox), "org.mozilla.firefox");
    EXPECT_EQ(nameOf(firefox), "Firefox-Webbrowser");
    EXPECT_EQ(idOf(resolve({.wmInstance = "code", .wmClass = "Code"})), "com.microsoft.VSCode");
    // Any other application keeps its desktop id.
    EXPECT_EQ(idOf(resolve({.kdeDesktopFile = "/usr/share/applications/kde-okular.desktop"})), "kde-okular");
}

TEST_F(AppIdentityTest, MoreReliableCluesWinOverTheWindowClass) {
    // The GTK application id beats a WM_CLASS that points elsewhere.
    EXPECT_EQ(
        idOf(resolve({.gtkApplicationID = "org.gnome.Nautilus", .wmInstance = "code", .wmClass = "Code"})),
        "org.larkspan.role.files");
    // An unknown GTK id falls through to the next clue.
    EXPECT_EQ(idOf(resolve(
                  {.gtkApplicationID = "org.example.Gone", .wmInstance = "Navigator", .wmClass = "firefox"})),
              "org.mozilla.firefox");
    // Flatpak sandbox, snap, GIO's desktop file.
    EXPECT_EQ(idOf(resolve({.wmClass = "Electron"}, {.flatpakID = "com.spotify.Client"})),
              "com.spotify.client");
    EXPECT_EQ(idOf(resolve({.wmClass = "Electron"}, {.gioDesktopFile = "/somewhere/code.desktop"})),
              "com.microsoft.VSCode");
    // A systemd unit counts unless the window's class names another entry: a program started from
    // a terminal runs in the terminal's unit.
    EXPECT_EQ(idOf(resolve({.wmClass = "UnknownClass"}, {.systemdAppID = "firefox"})), "org.mozilla.firefox");
    EXPECT_EQ(
        idOf(resolve({.wmInstance = "code", .wmClass = "Code"}, {.systemdAppID = "org.gnome.Terminal"})),
        "com.microsoft.VSCode");
}

TEST_F(AppIdentityTest, WithoutADesktopEntryTheClassOrSandboxStandsIn) {
    // A Flatpak without an exported entry, a snap without one, a bare window class.
    EXPECT_EQ(idOf(resolve({.wmClass = "Foo"}, {.flatpakID = "org.example.Tool"})), "org.example.Tool");
    EXPECT_EQ(idOf(resolve({.wmClass = "Foo"}, {.snapName = "firefox", .snapApp = "firefox"})),
              "org.mozilla.firefox");
    const auto bare = resolve({.wmInstance = "mytool", .wmClass = "MyTool"});
    EXPECT_EQ(idOf(bare), "MyTool");
    EXPECT_EQ(nameOf(bare), "MyTool");
    // Nothing at all: absent, never an empty text.
    const auto nothing = resolve({.pid = 99});
    EXPECT_FALSE(nothing.bundleID);
    EXPECT_FALSE(nothing.localizedName);
    EXPECT_EQ(nothing.pid, 99);
}

}  // namespace
}  // namespace larkspan
