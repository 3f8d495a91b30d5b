// The application's store under its default path, started in a child process because its failure
// ends the process: success creates the folder and file; an unopenable or damaged file ends with
// the fatal message and a non-zero status, never a crash or a hang.
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <random>
#include <sstream>
#include <thread>

#include "TempDir.h"

extern char** environ;

namespace larkspan {
namespace {

using test::TempDir;

struct Outcome {
    bool finished = false;  // false: killed after the time limit
    bool signalled = false;
    int status = -1;
    std::string out;
    std::string err;
};

std::string slurp(const std::filesystem::path& file) {
    std::ifstream in(file);
    std::stringstream text;
    text << in.rdbuf();
    return text.str();
}

// Runs the open_store tool with the parent's environment minus HOME and XDG_DATA_HOME, plus
// `overrides`. As root it runs as "nobody", so that file permissions apply to it.
Outcome runOpenStore(const TempDir& dir, const std::vector<std::string>& overrides) {
    std::vector<std::string> env;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string_view text(*entry);
        if (!text.starts_with("HOME=") && !text.starts_with("XDG_DATA_HOME="))
            env.emplace_back(text);
    }
    env.insert(env.end(), overrides.begin(), overrides.end());
    std::vector<char*> envp;
    for (auto& entry : env)
        envp.push_back(entry.data());
    envp.push_back(nullptr);
    std::string program = LARKSPAN_OPEN_STORE;
    char* argv[] = {program.data(), nullptr};
    const std::string outPath = (dir / "child.out").string();
    const std::string errPath = (dir / "child.err").string();

    // Opened here, before any change of user, and handed to the child as its output.
    const int out = open(outPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    const int err = open(errPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    const pid_t child = out >= 0 && err >= 0 ? fork() : -1;
    if (child == 0) {
        if (dup2(out, 1) < 0 || dup2(err, 2) < 0)
            _exit(126);
        if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0))
            _exit(126);
        execve(program.c_str(), argv, envp.data());
        _exit(127);
    }
    close(out);
    close(err);
    Outcome outcome;
    if (child < 0)
        return outcome;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    int status = 0;
    while (waitpid(child, &status, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() > deadline) {
            kill(child, SIGKILL);
            waitpid(child, &status, 0);
            return outcome;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    outcome.finished = true;
    outcome.signalled = WIFSIGNALED(status);
    outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    outcome.out = slurp(outPath);
    outcome.err = slurp(errPath);
    return outcome;
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
        ASSERT_TRUE(outcome.finished) << "the child hung";
        EXPECT_FALSE(outcome.signalled) << outcome.err;
        EXPECT_NE(outcome.status, 0);
        EXPECT_TRUE(outcome.err.starts_with("Database init failed: ")) << outcome.err;
        EXPECT_EQ(outcome.out, "");
    }

    TempDir dir;
};

TEST_F(DatabaseStartup, OpensUnderXdgDataHomeOrElseUnderHome) {
    const auto data = writableFolder("data");
    const Outcome xdg =
        runOpenStore(dir, {"XDG_DATA_HOME=" + (data / "nested").string(), "HOME=/nonexistent"});
    ASSERT_TRUE(xdg.finished);
    EXPECT_EQ(xdg.status, 0) << xdg.err;
    EXPECT_EQ(xdg.out, "21\n");
    EXPECT_TRUE(std::filesystem::is_regular_file(data / "nested" / "Larkspan" / "tracker.db"));

    // A relative XDG_DATA_HOME is not a valid setting and falls back to the home folder.
    const auto home = writableFolder("home");
    const Outcome fallback = runOpenStore(dir, {"XDG_DATA_HOME=relative", "HOME=" + home.string()});
    ASSERT_TRUE(fallback.finished);
    EXPECT_EQ(fallback.status, 0) << fallback.err;
    EXPECT_TRUE(std::filesystem::is_regular_file(home / ".local" / "share" / "Larkspan" / "tracker.db"));
}

TEST_F(DatabaseStartup, UnopenableOrDamagedStoresEndWithTheFatalMessage) {
    // A folder where the file should be.
    const auto folderAsFile = writableFolder("folder-as-file");
    std::filesystem::create_directories(folderAsFile / "Larkspan" / "tracker.db");
    expectFatal(runOpenStore(dir, {"XDG_DATA_HOME=" + folderAsFile.string()}));

    // A read-only data folder: "Larkspan" cannot be made.
    const auto readOnly = dir / "read-only";
    std::filesystem::create_directories(readOnly);
    std::filesystem::permissions(readOnly, std::filesystem::perms(0555));
    expectFatal(runOpenStore(dir, {"XDG_DATA_HOME=" + readOnly.string()}));

    // A read-only "Larkspan" folder: tracker.db cannot be created.
    const auto readOnlyStore = dir / "read-only-store";
    std::filesystem::create_directories(readOnlyStore / "Larkspan");
    std::filesystem::permissions(readOnlyStore / "Larkspan", std::filesystem::perms(0555));
    expectFatal(runOpenStore(dir, {"XDG_DATA_HOME=" + readOnlyStore.string()}));

    // A damaged file of random bytes.
    const auto damaged = writableFolder("damaged");
    std::filesystem::create_directories(damaged / "Larkspan");
    std::filesystem::permissions(damaged / "Larkspan", std::filesystem::perms(0777));
    {
        std::mt19937 random(42);
        std::ofstream file(damaged / "Larkspan" / "tracker.db", std::ios::binary);
        for (int i = 0; i < 256 * 1024; ++i)
            file.put(static_cast<char>(random()));
    }
    std::filesystem::permissions(damaged / "Larkspan" / "tracker.db", std::filesystem::perms(0666));
    const Outcome noise = runOpenStore(dir, {"XDG_DATA_HOME=" + damaged.string()});
    expectFatal(noise);
    EXPECT_NE(noise.err.find("file is not a database"), std::string::npos) << noise.err;
}

}  // namespace
}  // namespace larkspan
