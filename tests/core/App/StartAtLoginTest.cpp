// The autostart entry: where it goes, how the Exec line survives odd paths, the switch over a real
// folder (blocked, read-only, hand-edited), and the once-only offer at first launch.
#include "App/StartAtLogin.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

#include "MemoryKeyValueStore.h"
#include "RecordingNotifier.h"
#include "TempDir.h"

namespace larkspan {
namespace {

using namespace test;
namespace fs = std::filesystem;

std::string readFile(const fs::path& path) {
    std::stringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

void writeFile(const fs::path& path, const std::string& text) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

TEST(StartAtLogin, PathsFollowTheBaseDirectoryRules) {
    const std::map<std::string, std::string> env{{"XDG_CONFIG_HOME", "cfg"}, {"HOME", "/home/Zoë M"}};
    const auto lookup = [&env](const char* name) { return env.count(name) ? env.at(name).c_str() : nullptr; };
    // A relative XDG_CONFIG_HOME is ignored; spaces and non-ASCII pass through.
    EXPECT_EQ(autostartEntryPath(lookup), "/home/Zoë M/.config/autostart/org.larkspan.Larkspan.desktop");
    EXPECT_EQ(autostartEntryPath([](const char*) { return nullptr; }), "");
}

TEST(StartAtLogin, ExecLineQuotesEveryReservedCharacter) {
    const auto text = autostartEntryText("/home/Zoë M/it's \"$HOME\" `x` 100%\\bin/larkspan");
    ASSERT_TRUE(text);
    EXPECT_NE(
        text->find(
            "\nExec=\"/home/Zoë M/it's \\\\\"\\\\$HOME\\\\\" \\\\`x\\\\` 100%%\\\\\\\\bin/larkspan\"\n"),
        std::string::npos)
        << *text;
    EXPECT_FALSE(autostartEntryText("/opt/new\nline/larkspan"));
}

struct StartAtLoginTest : ::testing::Test {
    TempDir dir;
    fs::path entry = dir / "config/autostart/org.larkspan.Larkspan.desktop";
    MemoryKeyValueStore settings;
    RecordingNotifier notifier;
    StartAtLogin startAtLogin{entry, dir / "Zoë M/bin/larkspan", settings};
};

TEST_F(StartAtLoginTest, SwitchWritesOrRemovesOnlyItsEntryAndSaysWhyItCannot) {
    writeFile(entry.parent_path() / "other.desktop", "mine");
    EXPECT_EQ(startAtLogin.set(true), std::nullopt);
    EXPECT_EQ(readFile(entry), autostartEntryText(dir / "Zoë M/bin/larkspan"));
    EXPECT_EQ(startAtLogin.set(false), std::nullopt);
    EXPECT_EQ(readFile(entry.parent_path() / "other.desktop"), "mine");

    // A file where the folder should be stops even root.
    fs::remove_all(dir / "config");
    writeFile(dir / "config/autostart", "not a folder");
    const auto why = startAtLogin.set(true);
    ASSERT_TRUE(why);
    EXPECT_NE(why->find((dir / "config/autostart").string()), std::string::npos) << *why;
    EXPECT_FALSE(startAtLogin.isOn());
}

TEST_F(StartAtLoginTest, FirstLaunchOffersOnceLeavesAHandEditedEntryAndNeverReturnsOnceTurnedOff) {
    startAtLogin.offerAtFirstLaunch(false, notifier);  // a build folder
    EXPECT_FALSE(startAtLogin.isOn());
    startAtLogin.offerAtFirstLaunch(true, notifier);
    startAtLogin.offerAtFirstLaunch(true, notifier);
    ASSERT_EQ(notifier.sent.size(), 1u);

    settings.values.clear();
    writeFile(entry, "[Desktop Entry]\nExec=larkspan --my-flag\n\xff");
    startAtLogin.offerAtFirstLaunch(true, notifier);
    EXPECT_EQ(readFile(entry), "[Desktop Entry]\nExec=larkspan --my-flag\n\xff");

    settings.values.clear();
    ASSERT_EQ(startAtLogin.set(false), std::nullopt);
    startAtLogin.offerAtFirstLaunch(true, notifier);
    EXPECT_FALSE(startAtLogin.isOn());
}

}  // namespace
}  // namespace larkspan
