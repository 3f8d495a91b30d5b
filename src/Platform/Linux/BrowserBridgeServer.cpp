#include "Platform/Linux/BrowserBridgeServer.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <utility>
#include <vector>

#include "BrowserHost/BridgeProtocol.h"

namespace larkspan {

struct BrowserBridgeServer::Connection {
    int fd = -1;
    std::int64_t peerPid = 0;
    FrameReader reader;
    std::int64_t browserPid = 0;
    std::string program;
    bool toldMalformed = false;
};

namespace {

// The file name of a process's executable; empty when it cannot be read.
std::string programOf(std::int64_t pid) {
    std::error_code error;
    const auto target = std::filesystem::read_symlink("/proc/" + std::to_string(pid) + "/exe", error);
    return error ? std::string() : target.filename().string();
}

}  // namespace

BrowserBridgeServer::BrowserBridgeServer(std::string socketPath, const Clock& clock)
    : socketPath_(std::move(socketPath)), clock_(clock) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (socketPath_.empty() || socketPath_.size() >= sizeof address.sun_path)
        return;
    std::memcpy(address.sun_path, socketPath_.data(), socketPath_.size());
    if (::pipe2(wakePipe_, O_CLOEXEC) != 0)
        return;
    const int fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (fd < 0)
        return;
    ::unlink(socketPath_.c_str());
    if (::bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::chmod(socketPath_.c_str(), S_IRUSR | S_IWUSR) != 0 || ::listen(fd, 8) != 0) {
        ::close(fd);
        return;
    }
    listenFd_ = fd;
    thread_ = std::thread([this] { run(); });
}

BrowserBridgeServer::~BrowserBridgeServer() {
    if (thread_.joinable()) {
        const char stop = 1;
        [[maybe_unused]] const auto written = ::write(wakePipe_[1], &stop, 1);
        thread_.join();
    }
    if (listenFd_ >= 0) {
        ::close(listenFd_);
        ::unlink(socketPath_.c_str());
    }
    for (int fd : wakePipe_) {
        if (fd >= 0)
            ::close(fd);
    }
}

std::optional<BrowserTabReport> BrowserBridgeServer::latestReport(std::int64_t pid) {
    std::lock_guard lock(mutex_);
    const BrowserTabReport* latest = nullptr;
    for (const auto& [fd, report] : reports_) {
        if (report.pid == pid && (!latest || report.received >= latest->received))
            latest = &report;
    }
    return latest ? std::optional(*latest) : std::nullopt;
}

std::vector<BrowserTabReport> BrowserBridgeServer::latestReports() {
    std::lock_guard lock(mutex_);
    std::vector<BrowserTabReport> reports;
    for (const auto& [fd, report] : reports_)
        reports.push_back(report);
    return reports;
}

void BrowserBridgeServer::run() {
    std::vector<std::unique_ptr<Connection>> connections;
    std::vector<pollfd> polled;
    for (;;) {
        polled.assign({{wakePipe_[0], POLLIN, 0}, {listenFd_, POLLIN, 0}});
        for (const auto& connection : connections)
            polled.push_back({connection->fd, POLLIN, 0});
        if (::poll(polled.data(), polled.size(), -1) < 0) {
            if (errno == EINTR)
                continue;
            break;
        }
        if (polled[0].revents)
            break;
        // Hosts that are over: their reports go with them.
        for (std::size_t i = 0; i < connections.size();) {
            const auto revents = polled[2 + i].revents;
            if (!revents || readFrom(*connections[i])) {
                ++i;
                continue;
            }
            {
                std::lock_guard lock(mutex_);
                reports_.erase(connections[i]->fd);
            }
            ::close(connections[i]->fd);
            connections.erase(connections.begin() + static_cast<std::ptrdiff_t>(i));
            polled.erase(polled.begin() + static_cast<std::ptrdiff_t>(2 + i));
        }
        if (!(polled[1].revents & POLLIN))
            continue;
        const int fd = ::accept4(listenFd_, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        if (fd < 0)
            continue;
        ucred peer{};
        socklen_t size = sizeof peer;
        if (connections.size() >= kMaxConnections ||
            ::getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0 || peer.uid != ::getuid()) {
            ::close(fd);
            continue;
        }
        auto connection = std::make_unique<Connection>();
        connection->fd = fd;
        connection->peerPid = peer.pid;
        connections.push_back(std::move(connection));
    }
    for (const auto& connection : connections)
        ::close(connection->fd);
}

bool BrowserBridgeServer::readFrom(Connection& connection) {
    std::array<char, 64 * 1024> buffer;
    const ssize_t count = ::read(connection.fd, buffer.data(), buffer.size());
    if (count < 0)
        return errno == EINTR || errno == EAGAIN;
    if (count == 0)
        return false;
    std::vector<FrameReader::Frame> frames;
    connection.reader.feed({buffer.data(), static_cast<std::size_t>(count)}, frames);
    for (const auto& frame : frames)
        take(connection, frame.oversized ? std::string_view() : frame.body);
    return true;
}

void BrowserBridgeServer::take(Connection& connection, std::string_view frame) {
    auto forwarded = parseForwardedMessage(frame);
    if (!forwarded) {
        if (!std::exchange(connection.toldMalformed, true))
            std::fprintf(stderr, "Larkspan: dropped a malformed browser report from process %lld\n",
                         static_cast<long long>(connection.peerPid));
        return;
    }
    if (forwarded->pid != connection.browserPid) {
        connection.browserPid = forwarded->pid;
        connection.program = programOf(forwarded->pid);
    }
    BrowserTabReport report{forwarded->pid,
                            connection.program,
                            forwarded->tab.isPrivate,
                            std::move(forwarded->tab.url),
                            std::move(forwarded->tab.title),
                            clock_.now()};
    std::lock_guard lock(mutex_);
    reports_[connection.fd] = std::move(report);
}

}  // namespace larkspan
