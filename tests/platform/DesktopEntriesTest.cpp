#include "Platform/Linux/DesktopEntries.h"

#include <gtest/gtest.h>

#include <fstream>
#include <thread>

#include "Platform/Linux/DesktopFile.h"
#include "TempDir.h"

namespace larkspan {
namespace {

namespace fs = std::filesystem;
const fs::path kData = LARKSPAN_PLATFORM_TEST_DATA;

DesktopEntries fixtureEntries(std::vector<std::string> localeKeys = {}) {
    return DesktopEntries({kData / "home/applications", kData / "system/applications",
                           kData / "flatpak/exports/share/applications", kData / "missing/applications"},
                          std::move(localeKeys));
}

std::string idOf(const std::optional<DesktopEntry>& entry) {
    return entry ? entry->id : "(none)";
}

TEST(DesktopEntries, LocalizedNamePicksTheMostSpecificTranslation) {
    // Country variant, then language, then untranslated.
    EXPECT_EQ(fixtureEntries({"pt_BR", "pt"}).byID("firefox")->name, "Navegador Firefox");
    EXPECT_EQ(fixtureEntries({"pt_PT", "pt"}).byID("firefox")->name, "Navegador Web Firefox");
    EXPECT_EQ(fixtureEntries().byID("org.gnome.Nautilus")->name, "Files");
    // Escapes of the string type are undone.
    EXPECT_EQ(fixtureEntries().byID("helper-tool")->name, "Helper Tool");
}

TEST(DesktopEntries, EarlierFoldersWinHiddenMasksAndBrokenFilesAreSkipped) {
    const auto entries = fixtureEntries();
    EXPECT_EQ(entries.byID("org.gnome.Terminal")->name, "My Terminal");  // the user's copy
    EXPECT_FALSE(entries.byID("vlc"));                                   // Hidden=true in the user's folder
    // A half-written override hides nothing; the system entry stands.
    EXPECT_EQ(entries.byID("code")->name, "Visual Studio Code");
    // A bad line, another Type, no Name, ill-formed UTF-8: not applications.
    for (const char* id : {"broken", "link", "noname", "badutf8"})
        EXPECT_FALSE(entries.byID(id)) << id;
    EXPECT_EQ(idOf(entries.byID("kde-okular")), "kde-okular");  // subfolders prefix the id
    EXPECT_EQ(entries.size(), 8u);
}

TEST(DesktopEntries, WindowClassMatchesStartupWMClassThenIDs) {
    const auto entries = fixtureEntries();
    // StartupWMClass, instance before class, any case; the visible entry beats a NoDisplay twin.
    EXPECT_EQ(idOf(entries.byWindowClass("Navigator", "firefox")), "firefox");
    EXPECT_EQ(idOf(entries.byWindowClass("", "CODE")), "code");
    // A NoDisplay entry still identifies its windows.
    EXPECT_EQ(idOf(entries.byWindowClass("helper", "HelperTool")), "helper-tool");
    // Desktop ids: exact, any case, then a unique "*.<class>".
    EXPECT_EQ(idOf(entries.byWindowClass("gnome-terminal-server", "org.gnome.Terminal")),
              "org.gnome.Terminal");
    EXPECT_EQ(idOf(entries.byWindowClass("", "KDE-OKULAR")), "kde-okular");
    EXPECT_EQ(idOf(entries.byWindowClass("org.gnome.Nautilus", "Nautilus")), "org.gnome.Nautilus");
    // The Flatpak export folder is indexed like any other.
    const auto spotify = entries.byWindowClass("spotify", "Spotify");
    ASSERT_TRUE(spotify);
    EXPECT_EQ(spotify->id, "com.spotify.Client");
    EXPECT_EQ(spotify->flatpakID, "com.spotify.Client");
    // Nothing matches: no guess.
    EXPECT_FALSE(entries.byWindowClass("xterm", "UnknownThing"));
    EXPECT_FALSE(entries.byWindowClass("", ""));
}

TEST(DesktopEntries, RefreshesWhenAFolderChangesAndOnlyThen) {
    test::TempDir dir;
    const auto apps = dir / "applications";  // does not exist yet
    DesktopEntries entries({apps}, {}, std::chrono::milliseconds(0));
    EXPECT_EQ(entries.size(), 0u);

    fs::create_directories(apps / "sub");
    std::ofstream(apps / "sub" / "tool.desktop") << "[Desktop Entry]\nName=Tool\nType=Application\n";
    entries.refreshIfChanged();
    EXPECT_EQ(idOf(entries.byID("sub-tool")), "sub-tool");

    // A file added in a subfolder changes only that subfolder.
    std::ofstream(apps / "sub" / "other.desktop") << "[Desktop Entry]\nName=Other\nType=Application\n";
    entries.refreshIfChanged();
    EXPECT_EQ(idOf(entries.byID("sub-other")), "sub-other");

    fs::remove(apps / "sub" / "tool.desktop");
    entries.refreshIfChanged();
    EXPECT_FALSE(entries.byID("sub-tool"));
}

TEST(DesktopFile, HostileTextNeverCrashesAndYieldsNothingUsable) {
    const std::vector<std::string> keys = {"de"};
    EXPECT_FALSE(parseDesktopFile("", keys));
    EXPECT_FALSE(parseDesktopFile(std::string(100000, 'x'), keys));
    // A NUL byte means the file is no text.
    EXPECT_FALSE(parseDesktopFile(std::string("[Desktop Entry]\nName=A\0B\nType=Application", 41), keys));
    EXPECT_FALSE(parseDesktopFile("[Desktop Entry]\nName=A\nType=Application\n\xff", keys));
    EXPECT_FALSE(parseDesktopFile("Name=Outside\n[Desktop Entry]\nType=Application\n", keys));
    EXPECT_FALSE(
        parseDesktopFile("[Desktop Entry]\nName=A\nType=Application\n[Desktop Entry]\nName=B\n", keys));
    // A translation that is ill-formed falls back to the plain name; right-to-left text is kept.
    const auto file =
        parseDesktopFile("[Desktop Entry]\nName=\xD7\xA2\xD7\x91\nName[de]=\xC3\x28\nType=Application", keys);
    ASSERT_TRUE(file);
    EXPECT_EQ(file->name, "\xD7\xA2\xD7\x91");
    // Windows line ends and blanks around '=' are tolerated.
    EXPECT_EQ(parseDesktopFile("[Desktop Entry]\r\nName = Spaced \r\nType=Application\r\n", keys)->name,
              "Spaced");
}

}  // namespace
}  // namespace larkspan
