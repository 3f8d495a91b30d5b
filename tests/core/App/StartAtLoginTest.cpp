// The autostart entry: where it goes, how the Exec line survives odd paths, the switch over a real
// folder (missing, blocked, read-only, hand-edited), and the once-only offer at first launch.
#include "App/StartAtLogin.h"

#include <gtest/gtest.h>
#include <unistd.h>

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
    std::ifstream in(path, std::ios::binary);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

void writeFile(const fs::path& path, const std::string& text) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}

TEST(StartAtLogin, EntryPathFollowsTheBaseDirectoryRules) {
    using Env = std::map<std::string, std::string>;
    const std::vector<std::pair<Env, std::string>> cases{
        {{{"XDG_CONFIG_HOME", "/cfg"}, {"HOME", "/home/a"}}, "/cfg/autostart/org.larkspan.Larkspan.desktop"},
        // A relative XDG_CONFIG_HOME is ignored; spaces and non-ASCII pass through.
        {{{"XDG_CONFIG_HOME", "cfg"}, {"HOME", "/home/Zoë M"}},
         "/home/Zoë M/.config/autostart/org.larkspan.Larkspan.desktop"},
        {{}, ""},
    };
    for (const auto& [env, expected] : cases) {
        const auto lookup = [&env](const char* name) -> const char* {
            auto it = env.find(name);
            return it == env.end() ? nullptr : it->second.c_str();
        };
        EXPECT_EQ(autostartEntryPath(lookup).string(), expected);
    }
}

TEST(StartAtLogin, ExecLineQuotesEveryReservedCharacter) {
    const auto text = autostartEntryText("/home/Zoë M/it's \"$HOME\" `x` 100%\\bin/larkspan");
    ASSERT_TRUE(text);
    EXPECT_NE(
        text->find(
            "\nExec=\"/home/Zoë M/it's \\\\\"\\\\$HOME\\\\\" \\\\`x\\\\` 100%%\\\\\\\\bin/larkspan\"\n"),
        std::string::npos)
        << *text;
    EXPECT_NE(text->find("\nTryExec=/home/Zoë M/it's \"$HOME\" `x` 100%\\\\bin/larkspan\n"),
              std::string::npos);
    EXPECT_FALSE(autostartEntryText("/opt/new\nline/larkspan"));
}

TEST(StartAtLogin, InstalledMeansBesideLarkspansDesktopEntry) {
    TempDir dir;
    writeFile(dir / "usr/share/applications/org.larkspan.Larkspan.desktop", "");
    EXPECT_TRUE(isInstalledExecutable(dir / "usr/bin/larkspan"));
    EXPECT_FALSE(isInstalledExecutable(dir / "usr/build/larkspan"));
    EXPECT_FALSE(isInstalledExecutable(dir / "opt/bin/larkspan"));
}

struct StartAtLoginTest : ::testing::Test {
    TempDir dir;
    fs::path entry = dir / "config/autostart/org.larkspan.Larkspan.desktop";
    fs::path executable = dir / "Zoë M/bin/larkspan";
    MemoryKeyValueStore settings;
    RecordingNotifier notifier;
    StartAtLogin startAtLogin{entry, executable, settings};

    std::vector<std::string> titles() const {
        std::vector<std::string> result;
        for (const auto& sent : notifier.sent)
            result.push_back(sent.title);
        return result;
    }
};

TEST_F(StartAtLoginTest, SwitchWritesTheEntryAndRemovesItAgain) {
    EXPECT_FALSE(startAtLogin.isOn());
    EXPECT_EQ(startAtLogin.set(true), std::nullopt);  // the folder is made as needed
    EXPECT_TRUE(startAtLogin.isOn());
    EXPECT_EQ(readFile(entry), autostartEntryText(executable));
    writeFile(entry.parent_path() / "other.desktop", "[Desktop Entry]\n");

    EXPECT_EQ(startAtLogin.set(false), std::nullopt);
    EXPECT_FALSE(startAtLogin.isOn());
    EXPECT_EQ(startAtLogin.set(false), std::nullopt);  // already off
    EXPECT_EQ(readFile(entry.parent_path() / "other.desktop"), "[Desktop Entry]\n");
    EXPECT_EQ(fs::directory_iterator(entry.parent_path())->path().filename(), "other.desktop");
}

TEST_F(StartAtLoginTest, AnUnwritableFolderLeavesTheSwitchOffWithTheReason) {
    // A file where the folder should be stops root too; a read-only folder only other users.
    writeFile(dir / "config/autostart", "not a folder");
    auto why = startAtLogin.set(true);
    ASSERT_TRUE(why);
    EXPECT_NE(why->find((dir / "config/autostart").string()), std::string::npos) << *why;
    EXPECT_FALSE(startAtLogin.isOn());
    EXPECT_EQ(readFile(dir / "config/autostart"), "not a folder");

    if (geteuid() != 0) {
        fs::remove(dir / "config/autostart");
        fs::create_directories(entry.parent_path());
        fs::permissions(entry.parent_path(), fs::perms::owner_read | fs::perms::owner_exec);
        EXPECT_TRUE(startAtLogin.set(true));
        EXPECT_FALSE(startAtLogin.isOn());
        EXPECT_TRUE(fs::is_empty(entry.parent_path()));
    }
}

TEST_F(StartAtLoginTest, FirstLaunchOffersOnceAndNeverAfterTheSwitchWasTurnedOff) {
    startAtLogin.offerAtFirstLaunch(false, notifier);  // a build folder
    EXPECT_FALSE(startAtLogin.isOn());
    EXPECT_TRUE(notifier.sent.empty());

    startAtLogin.offerAtFirstLaunch(true, notifier);
    startAtLogin.offerAtFirstLaunch(true, notifier);
    EXPECT_TRUE(startAtLogin.isOn());
    EXPECT_EQ(titles(), std::vector<std::string>{"Larkspan starts at login"});

    ASSERT_EQ(startAtLogin.set(false), std::nullopt);
    settings.values.clear();
    ASSERT_EQ(startAtLogin.set(false), std::nullopt);  // turned off before any offer: remembered too
    startAtLogin.offerAtFirstLaunch(true, notifier);
    EXPECT_FALSE(startAtLogin.isOn());
    EXPECT_EQ(notifier.sent.size(), 1u);
}

TEST_F(StartAtLoginTest, FirstLaunchLeavesAHandEditedEntryAndReportsAFailureOnce) {
    writeFile(entry, "[Desktop Entry]\nExec=larkspan --my-flag\nHidden=false\n\xff\xfe");
    startAtLogin.offerAtFirstLaunch(true, notifier);
    EXPECT_EQ(readFile(entry), "[Desktop Entry]\nExec=larkspan --my-flag\nHidden=false\n\xff\xfe");
    EXPECT_TRUE(notifier.sent.empty());

    fs::remove_all(dir / "config");
    writeFile(dir / "config/autostart", "");
    settings.values.clear();
    startAtLogin.offerAtFirstLaunch(true, notifier);
    startAtLogin.offerAtFirstLaunch(true, notifier);
    EXPECT_EQ(titles(), std::vector<std::string>{"Start Larkspan at login"});
    EXPECT_FALSE(startAtLogin.isOn());
}

}  // namespace
}  // namespace larkspan
