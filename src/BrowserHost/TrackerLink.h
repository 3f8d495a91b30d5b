// The host's connection to the tracker's socket. Reports are not worth waiting for: when the
// tracker is not running, or does not take a frame within a second, the frame is dropped and the
// link tries again at the next frame, at most once a second.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace larkspan {

class TrackerLink {
public:
    explicit TrackerLink(std::string socketPath) : socketPath_(std::move(socketPath)) {}
    ~TrackerLink();
    TrackerLink(const TrackerLink&) = delete;
    TrackerLink& operator=(const TrackerLink&) = delete;

    // Sends one whole frame; false when it was dropped.
    bool send(std::string_view frame);

private:
    bool connect();
    void close();

    const std::string socketPath_;
    int fd_ = -1;
    std::chrono::steady_clock::time_point lastAttempt_{};
    bool attempted_ = false;
};

}  // namespace larkspan
