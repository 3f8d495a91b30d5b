// Xvfb management. Display numbers from :90 upward are tried in turn; a number whose socket or
// lock file exists belongs to someone else, and a server that exits at once lost a race for it.
#include "XvfbDisplay.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

extern char** environ;

namespace larkspan::test {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

constexpr int kFirstDisplay = 90;
constexpr int kLastDisplay = 189;

bool onPath(const std::string& program) {
    const char* path = std::getenv("PATH");
    std::stringstream dirs(path ? path : "/usr/bin:/bin");
    std::string dir;
    while (std::getline(dirs, dir, ':')) {
        if (!dir.empty() && access((fs::path(dir) / program).c_str(), X_OK) == 0)
            return true;
    }
    return false;
}

bool exited(pid_t pid) {
    int status = 0;
    return waitpid(pid, &status, WNOHANG) == pid;
}

// Starts `argv` with `display` set; stdout goes to `stdoutFd` when not -1, else to /dev/null.
pid_t spawnWith(const std::vector<std::string>& argv, const std::string& display, int stdoutFd = -1) {
    std::vector<std::string> env;
    for (char** e = environ; *e; ++e) {
        const std::string entry = *e;
        if (entry.rfind("DISPLAY=", 0) == 0 || entry.rfind("LC_ALL=", 0) == 0 ||
            entry.rfind("WAYLAND_DISPLAY=", 0) == 0) {
            continue;
        }
        env.push_back(entry);
    }
    if (!display.empty())
        env.push_back("DISPLAY=" + display);
    env.push_back("LC_ALL=C.UTF-8");
    std::vector<char*> envp;
    for (auto& entry : env)
        envp.push_back(entry.data());
    envp.push_back(nullptr);
    std::vector<std::string> args = argv;
    std::vector<char*> argp;
    for (auto& arg : args)
        argp.push_back(arg.data());
    argp.push_back(nullptr);

    // fork rather than posix_spawn: the child asks for SIGTERM when the test process dies, so a
    // crashed test leaves no server (nor its socket and lock) behind. Only async-signal-safe calls
    // between fork and exec.
    const pid_t pid = fork();
    if (pid < 0)
        return 0;
    if (pid == 0) {
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        const int devNull = open("/dev/null", O_RDWR);
        dup2(devNull, STDIN_FILENO);
        dup2(stdoutFd >= 0 ? stdoutFd : devNull, STDOUT_FILENO);
        dup2(devNull, STDERR_FILENO);
        execvpe(argp[0], argp.data(), envp.data());
        _exit(127);
    }
    return pid;
}

}  // namespace

bool waitUntil(const std::function<bool()>& condition, std::chrono::milliseconds timeout) {
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    for (;;) {
        if (condition())
            return true;
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(10ms);
    }
}

bool XvfbDisplay::xvfbInstalled() {
    return onPath("Xvfb");
}

XvfbDisplay::XvfbDisplay(Options options) : options_(options) {
    for (int number = kFirstDisplay; number <= kLastDisplay && !server_; ++number) {
        if (fs::exists("/tmp/.X11-unix/X" + std::to_string(number)) ||
            fs::exists("/tmp/.X" + std::to_string(number) + "-lock")) {
            continue;
        }
        startServer(number);
    }
    if (!server_) {
        error_ = "no free display number could be started with Xvfb";
        return;
    }
    ready_ = !options_.windowManager || startWindowManager();
}

XvfbDisplay::~XvfbDisplay() {
    for (auto& pid : clients_)
        stop(pid);
    stop(windowManager_);
    stop(server_);
    if (placeholderLock_)
        fs::remove("/tmp/.X" + std::to_string(number_) + "-lock");
}

bool XvfbDisplay::startServer(int number) {
    const auto display = std::string(":").append(std::to_string(number));
    std::vector<std::string> argv = {"Xvfb",     display,   "-nolisten", "tcp",
                                     "-noreset", "-screen", "0",         "1280x800x24"};
    if (!options_.screenSaverExtension) {
        argv.push_back("-extension");
        argv.push_back("MIT-SCREEN-SAVER");
    }
    const pid_t pid = spawnWith(argv, "");
    if (!pid)
        return false;
    // The socket alone does not tell whose server it is: another test may have won the number. The
    // lock file holds the pid of the server that owns it.
    const auto socket = "/tmp/.X11-unix/X" + std::to_string(number);
    const auto lock = "/tmp/.X" + std::to_string(number) + "-lock";
    bool died = false;
    const bool up = waitUntil([&] {
        died = died || exited(pid);
        if (died || !fs::exists(socket))
            return died;
        long owner = 0;
        std::ifstream(lock) >> owner;
        return owner == pid;
    });
    if (!up || died) {
        if (!died) {
            kill(pid, SIGKILL);
            waitpid(pid, nullptr, 0);
        }
        return false;
    }
    server_ = pid;
    number_ = number;
    name_ = display;
    return true;
}

bool XvfbDisplay::startWindowManager() {
    windowManager_ = spawnWith({"openbox", "--sm-disable"}, name_);
    const bool up =
        windowManager_ && waitUntil([&] {
            // Openbox publishes the client list last, once it handles map requests.
            return run({"xprop", "-root", "_NET_CLIENT_LIST"}, 1000ms).find("window id") != std::string::npos;
        });
    if (!up)
        error_ = "openbox did not start on " + name_;
    return up;
}

void XvfbDisplay::stop(pid_t& pid) {
    if (pid <= 0)
        return;
    kill(pid, SIGTERM);
    if (!waitUntil([&] { return exited(pid); }, 2000ms)) {
        kill(pid, SIGKILL);
        waitpid(pid, nullptr, 0);
    }
    pid = 0;
}

pid_t XvfbDisplay::spawn(const std::vector<std::string>& argv) {
    const pid_t pid = spawnWith(argv, name_);
    if (pid)
        clients_.push_back(pid);
    return pid;
}

std::string XvfbDisplay::run(const std::vector<std::string>& argv, std::chrono::milliseconds timeout) {
    int fds[2];
    if (pipe2(fds, O_CLOEXEC) != 0)
        return {};
    const pid_t pid = spawnWith(argv, name_, fds[1]);
    close(fds[1]);
    std::string output;
    if (pid) {
        fcntl(fds[0], F_SETFL, O_NONBLOCK);
        bool done = false;
        waitUntil(
            [&] {
                char buffer[4096];
                ssize_t n;
                while ((n = read(fds[0], buffer, sizeof buffer)) > 0)
                    output.append(buffer, static_cast<std::size_t>(n));
                done = exited(pid);
                return done;
            },
            timeout);
        if (!done) {
            kill(pid, SIGKILL);
            waitpid(pid, nullptr, 0);
        }
        char buffer[4096];
        ssize_t n;
        while ((n = read(fds[0], buffer, sizeof buffer)) > 0)
            output.append(buffer, static_cast<std::size_t>(n));
    }
    close(fds[0]);
    return output;
}

std::vector<std::string> XvfbDisplay::windowsOfClass(const std::string& wmClass,
                                                     std::chrono::milliseconds timeout) {
    std::vector<std::string> ids;
    waitUntil(
        [&] {
            std::stringstream lines(
                run({"xdotool", "search", "--onlyvisible", "--class", "^" + wmClass + "$"}, 1000ms));
            ids.clear();
            for (std::string line; std::getline(lines, line);) {
                if (!line.empty())
                    ids.push_back(line);
            }
            return !ids.empty();
        },
        timeout);
    return ids;
}

void XvfbDisplay::activate(const std::string& windowID) {
    run({"xdotool", "windowactivate", "--sync", windowID});
}

void XvfbDisplay::stopServer() {
    for (auto& pid : clients_)
        stop(pid);
    clients_.clear();
    stop(windowManager_);
    const pid_t server = server_;
    stop(server_);
    // Xvfb removes its socket and lock on a clean exit. Keep the number from other tests meanwhile:
    // a lock naming the dead server is stale to Xvfb, which replaces it, but taken to our search.
    const auto number = std::to_string(number_);
    waitUntil(
        [&] { return !fs::exists("/tmp/.X11-unix/X" + number) && !fs::exists("/tmp/.X" + number + "-lock"); },
        2000ms);
    char text[16];
    std::snprintf(text, sizeof text, "%10d\n", static_cast<int>(server));
    std::ofstream("/tmp/.X" + number + "-lock") << text;
    placeholderLock_ = true;
}

bool XvfbDisplay::restartServer() {
    placeholderLock_ = false;
    if (number_ < 0 || !startServer(number_))
        return false;
    ready_ = !options_.windowManager || startWindowManager();
    return ready_;
}

}  // namespace larkspan::test
