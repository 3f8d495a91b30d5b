#include "BrowserHost/TrackerLink.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace larkspan {

TrackerLink::~TrackerLink() {
    close();
}

bool TrackerLink::send(std::string_view frame) {
    if (fd_ < 0 && !connect())
        return false;
    while (!frame.empty()) {
        const ssize_t sent = ::send(fd_, frame.data(), frame.size(), MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR)
            continue;
        if (sent <= 0) {
            // A frame cut short would leave the tracker reading garbage: start a new connection.
            close();
            return false;
        }
        frame.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

bool TrackerLink::connect() {
    const auto now = std::chrono::steady_clock::now();
    if (attempted_ && now - lastAttempt_ < std::chrono::seconds(1))
        return false;
    attempted_ = true;
    lastAttempt_ = now;

    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (socketPath_.empty() || socketPath_.size() >= sizeof address.sun_path)
        return false;
    std::memcpy(address.sun_path, socketPath_.data(), socketPath_.size());
    fd_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd_ < 0)
        return false;
    const timeval timeout{1, 0};
    ::setsockopt(fd_, SOL_SOCKET, SO_SNDTIMEO, &timeout, sizeof timeout);
    if (::connect(fd_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        close();
        return false;
    }
    return true;
}

void TrackerLink::close() {
    if (fd_ >= 0)
        ::close(fd_);
    fd_ = -1;
}

}  // namespace larkspan
