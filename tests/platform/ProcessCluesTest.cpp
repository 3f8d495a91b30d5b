#include "Platform/Linux/ProcessClues.h"

#include <gtest/gtest.h>

#include <fstream>

#include "TempDir.h"

namespace larkspan {
namespace {

ProcessClues cgroupClues(const std::string& text) {
    ProcessClues clues;
    readCgroupClues(text, clues);
    return clues;
}

TEST(ProcessClues, CgroupNamesTheSnapOrTheSystemdApplication) {
    auto snap = cgroupClues(
        "0::/user.slice/user-1000.slice/user@1000.service/app.slice/"
        "snap.firefox.firefox-2c2a8d2e-4f4e-4b1e-9d2b-0a4f0e1c7b11.scope\n");
    EXPECT_EQ(snap.snapName, "firefox");
    EXPECT_EQ(snap.snapApp, "firefox");

    // app-<launcher>-<id>-<random>.scope, app-<id>@<random>.service, escaped dashes, no launcher.
    EXPECT_EQ(cgroupClues("0::/user.slice/app.slice/app-gnome-org.gnome.Terminal-4242.scope").systemdAppID,
              "org.gnome.Terminal");
    EXPECT_EQ(cgroupClues("0::/app.slice/app-org.kde.konsole@0a1b2c.service").systemdAppID,
              "org.kde.konsole");
    EXPECT_EQ(cgroupClues("0::/app.slice/app-gnome-google\\x2dchrome-977.scope").systemdAppID,
              "google-chrome");
    EXPECT_EQ(cgroupClues("0::/app.slice/app-firefox-12.scope").systemdAppID, "firefox");

    // Slices, session scopes, cgroup v1 noise and junk give nothing.
    for (const char* text :
         {"0::/", "0::/user.slice/app.slice", "0::/user.slice/session-2.scope",
          "4:memory:/process_api/1686b3", "0::/app-.scope", "0::/snap..scope", "", "\n\n/"}) {
        EXPECT_EQ(cgroupClues(text), ProcessClues{}) << text;
    }
}

TEST(ProcessClues, GioDesktopFileCountsOnlyForTheProcessGioLaunched) {
    using namespace std::string_literals;
    const auto environ =
        "PATH=/usr/bin\0GIO_LAUNCHED_DESKTOP_FILE=/usr/share/applications/org.gnome.gedit.desktop\0"
        "GIO_LAUNCHED_DESKTOP_FILE_PID=77\0"s;
    EXPECT_EQ(gioLaunchedDesktopFile(environ, 77), "/usr/share/applications/org.gnome.gedit.desktop");
    EXPECT_EQ(gioLaunchedDesktopFile(environ, 78), "");  // a child that inherited the variable
}

TEST(ProcessClues, ReadsAFlatpakSandboxFromProc) {
    test::TempDir proc;
    std::filesystem::create_directories(proc / "4711/root");
    std::ofstream(proc / "4711/root/.flatpak-info")
        << "[Instance]\nname=not-this\n\n[Application]\r\nname=org.mozilla.firefox\r\nruntime=runtime/x\n";
    std::ofstream(proc / "4711/cgroup")
        << "0::/user.slice/app.slice/app-flatpak-org.mozilla.firefox-5.scope\n";
    const auto clues = readProcessClues(4711, proc.path());
    EXPECT_EQ(clues.flatpakID, "org.mozilla.firefox");
    EXPECT_EQ(clues.systemdAppID, "org.mozilla.firefox");
    // A process that is gone, or no process at all.
    EXPECT_EQ(readProcessClues(4712, proc.path()), ProcessClues{});
    EXPECT_EQ(readProcessClues(0, proc.path()), ProcessClues{});
}

}  // namespace
}  // namespace larkspan
