// Xvfb management. Each display takes a number well above the low ones other desktops pick for
// themselves, starting at one derived from the process id, and moves on when a number is taken; a
// stopped server's number is then not the lowest free one any other Xvfb would take meanwhile.
// Xvfb writes the number to -displayfd once it accepts connections.
#include "XvfbDisplay.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <thread>

namespace larkspan::test {

using namespace std::chrono_literals;

namespace {

// Starts `command` on `display` with its output to `out` (-1: nowhere). fork rather than posix_spawn:
// the child asks for SIGTERM when the test process dies, so a crashed test leaves no server behind.
pid_t launch(const std::vector<std::string>& command, const std::string& display, int out = -1) {
    std::vector<std::string> argv = {"env", "-u", "WAYLAND_DISPLAY", "DISPLAY=" + display, "LC_ALL=C.UTF-8"};
    argv.insert(argv.end(), command.begin(), command.end());
    std::vector<char*> args;
    for (auto& arg : argv)
        args.push_back(arg.data());
    args.push_back(nullptr);
    const pid_t pid = fork();
    if (pid == 0) {  // only async-signal-safe calls until exec
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        const int devNull = open("/dev/null", O_RDWR);
        dup2(devNull, STDIN_FILENO);
        dup2(out >= 0 ? out : devNull, STDOUT_FILENO);
        dup2(devNull, STDERR_FILENO);
        execvp(args[0], args.data());
        _exit(127);
    }
    return pid > 0 ? pid : 0;
}

bool exited(pid_t pid) {
    return waitpid(pid, nullptr, WNOHANG) == pid;
}

void stop(pid_t pid) {
    kill(pid, SIGTERM);
    if (!waitUntil([&] { return exited(pid); }, 2000ms)) {
        kill(pid, SIGKILL);
        waitpid(pid, nullptr, 0);
    }
}

std::string lockFile(const std::string& display) {
    return "/tmp/.X" + display.substr(1) + "-lock";
}

}  // namespace

bool waitUntil(const std::function<bool()>& condition, std::chrono::milliseconds timeout) {
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(10ms);
    }
    return true;
}

XvfbDisplay::XvfbDisplay(Options options) : options_(options) {
    const int first = 200 + static_cast<int>(getpid() % 600);
    // A number that is taken makes Xvfb exit at once; a server that came up ends the search.
    for (int number = first; number < first + 20 && name_.empty(); ++number)
        start(":" + std::to_string(number));
}

XvfbDisplay::~XvfbDisplay() {
    for (auto pid = processes_.rbegin(); pid != processes_.rend(); ++pid)
        stop(*pid);
}

// Xvfb on `display`, then openbox.
bool XvfbDisplay::start(const std::string& display) {
    std::vector<std::string> argv = {"Xvfb",     "-displayfd", "1", "-nolisten",  "tcp",
                                     "-noreset", "-screen",    "0", "1280x800x24"};
    argv.insert(argv.begin() + 1, display);
    int fds[2];
    if (pipe2(fds, O_CLOEXEC) != 0)
        return false;
    const pid_t server = launch(argv, "", fds[1]);
    close(fds[1]);
    std::string number;
    pollfd ready{fds[0], POLLIN, 0};
    for (char c; server && poll(&ready, 1, 10000) == 1 && read(fds[0], &c, 1) == 1 && c != '\n';)
        number += c;
    close(fds[0]);
    if (number.empty()) {
        error_ = "Xvfb did not start; scripts/install-deps installs it";
        if (server)
            stop(server);
        return false;
    }
    processes_.push_back(server);
    name_ = ":" + number;
    if (options_.windowManager) {
        spawn({"openbox", "--sm-disable"});
        // Openbox publishes the client list last, once it handles map requests.
        if (!waitUntil([&] {
                return run({"xprop", "-root", "_NET_CLIENT_LIST"}, 1000ms).find("window id") !=
                       std::string::npos;
            })) {
            error_ = "openbox did not start on " + name_;
            return false;
        }
    }
    return ready_ = true;
}

pid_t XvfbDisplay::spawn(const std::vector<std::string>& argv) {
    const pid_t pid = launch(argv, name_);
    if (pid)
        processes_.push_back(pid);
    return pid;
}

std::string XvfbDisplay::run(const std::vector<std::string>& argv, std::chrono::milliseconds timeout) {
    std::vector<std::string> timed = {"timeout", "-s", "KILL", std::to_string(timeout.count() / 1000.0)};
    timed.insert(timed.end(), argv.begin(), argv.end());
    int fds[2];
    if (pipe2(fds, O_CLOEXEC) != 0)
        return {};
    const pid_t pid = launch(timed, name_, fds[1]);
    close(fds[1]);
    std::string output;
    char buffer[4096];
    for (ssize_t n; pid && (n = read(fds[0], buffer, sizeof buffer)) > 0;)
        output.append(buffer, static_cast<std::size_t>(n));
    close(fds[0]);
    if (pid)
        waitpid(pid, nullptr, 0);
    return output;
}

std::vector<std::string> XvfbDisplay::windowsOfClass(const std::string& wmClass,
                                                     std::chrono::milliseconds timeout) {
    std::istringstream ids(
        run({"xdotool", "search", "--sync", "--onlyvisible", "--class", "^" + wmClass + "$"}, timeout));
    return {std::istream_iterator<std::string>(ids), {}};
}

void XvfbDisplay::activate(const std::string& windowID) {
    run({"xdotool", "windowactivate", "--sync", windowID});
}

void XvfbDisplay::stopServer() {
    for (auto pid = processes_.rbegin(); pid != processes_.rend(); ++pid)
        stop(*pid);
    processes_.clear();
    ready_ = false;
    // Hold the number until the restart: Xvfb skips a number whose lock names a live process.
    const std::string lock = lockFile(name_);
    waitUntil([&] { return !std::filesystem::exists(lock); }, 2000ms);
    char text[16];
    std::snprintf(text, sizeof text, "%10d\n", static_cast<int>(getpid()));
    std::ofstream(lock) << text;
}

bool XvfbDisplay::restartServer() {
    std::filesystem::remove(lockFile(name_));
    return start(name_);
}

}  // namespace larkspan::test
