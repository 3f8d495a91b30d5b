// The application's store under its default path, started in a child process because its failure
// ends the process: success creates the folder and file; an unopenable or damaged file ends with
// the fatal message and a non-zero status, never a crash or a hang.
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>

#include "TempDir.h"

namespace larkspan {
namespace {

using test::TempDir;

struct Outcome {
    int status = -1;  // the exit status; 124 and above: hung, or ended by a signal
    std::string out;
    std::string err;
};

std::string slurp(const std::filesystem::path& file) {
    std::ifstream in(file);
    return {std::istreambuf_iterator<char>(in), {}};
}

// Runs the open_store tool with the parent's environment minus HOME and XDG_DATA_HOME, plus
// `overrides`, killed after a minute. As root it runs as "nobody", so that file permissions apply.
Outcome runOpenStore(const TempDir& dir, const std::vector<std::string>& overrides) {
    std::string command = "timeout -s KILL 60 ";
    if (geteuid() == 0)
        command += "setpriv --reuid=65534 --regid=65534 --clear-groups ";
    command += "env -u HOME -u XDG_DATA_HOME";
    for (const std::string& entry : overrides)
        command += " '" + entry + "'";
    command += std::string(" ") + LARKSPAN_OPEN_STORE + " >" + (dir / "child.out").string() + " 2>" +
               (dir / "child.err").string();
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, slurp(dir / "child.out"), slurp(dir / "child.err")};
}

class DatabaseStartup : public ::testing::Test {
protected:
    void SetUp() override {
        // The child may run as another user: let it reach, not write, the test folder.
        std::filesystem::permissions(dir.path(), std::filesystem::perms(0755));
    }

    // A folder the child may write to.
    std::filesystem::path writableFolder(const std::string& name) {
        const auto folder = dir / name;
        std::filesystem::create_directories(folder);
        std::filesystem::permissions(folder, std::filesystem::perms(0777));
        return folder;
    }

    void expectFatal(const Outcome& outcome) {
        EXPECT_GT(outcome.status, 0);
        EXPECT_LT(outcome.status, 124) << "hung or crashed: " << outcome.err;
        EXPECT_TRUE(outcome.err.starts_with("Database init failed: ")) << outcome.err;
        EXPECT_EQ(outcome.out, "");
    }

    TempDir dir;
};

// A relative XDG_DATA_HOME is not a valid setting and falls back to the home folder.
TEST_F(DatabaseStartup, OpensUnderHomeWithoutAnAbsoluteXdgDataHome) {
    const auto home = writableFolder("home");
    const Outcome fallback = runOpenStore(dir, {"XDG_DATA_HOME=relative", "HOME=" + home.string()});
    EXPECT_EQ(fallback.status, 0) << fallback.err;
    EXPECT_TRUE(std::filesystem::is_regular_file(home / ".local" / "share" / "Larkspan" / "tracker.db"));
}

TEST_F(DatabaseStartup, UnopenableOrDamagedStoresEndWithTheFatalMessage) {
    // A folder where the file should be.
    const auto folderAsFile = writableFolder("folder-as-file");
    std::filesystem::create_directories(folderAsFile / "Larkspan" / "tracker.db");
    expectFatal(runOpenStore(dir, {"XDG_DATA_HOME=" + folderAsFile.string()}));

    // A read-only data folder, where "Larkspan" cannot be made, and a read-only "Larkspan" folder,
    // where tracker.db cannot be created.
    for (const std::string inner : {"", "Larkspan"}) {
        const auto readOnly = dir / ("read-only-" + inner);
        std::filesystem::create_directories(readOnly / inner);
        std::filesystem::permissions(readOnly / inner, std::filesystem::perms(0555));
        expectFatal(runOpenStore(dir, {"XDG_DATA_HOME=" + readOnly.string()}));
    }

    // A damaged file of random bytes.
    const auto damaged = writableFolder("damaged/Larkspan");
    {
        std::mt19937 random(42);
        std::ofstream file(damaged / "tracker.db", std::ios::binary);
        for (int i = 0; i < 256 * 1024; ++i)
            file.put(static_cast<char>(random()));
    }
    std::filesystem::permissions(damaged / "tracker.db", std::filesystem::perms(0666));
    expectFatal(runOpenStore(dir, {"XDG_DATA_HOME=" + (dir / "damaged").string()}));
}

}  // namespace
}  // namespace larkspan
