// The tracker's end of the browser bridge: a Unix socket in $XDG_RUNTIME_DIR that each browser's
// native messaging host connects to, served on a thread of its own so that neither a silent nor a
// flooding host can hold up the main thread or the captures.
//
// Only the user's own processes get in: the socket file is 0600 in the user's 0700 runtime folder,
// and a peer of another uid (SO_PEERCRED) is hung up on at once. Memory is bounded: at most
// kMaxConnections hosts, each with one partly read frame (at most kMaxFrameBytes) and its latest
// report. A frame that is not a well-formed report is dropped; the first from each host is logged.
#pragma once

#include <map>
#include <mutex>
#include <string>
#include <thread>

#include "Platform/BrowserBridge.h"
#include "Platform/Clock.h"

namespace larkspan {

class BrowserBridgeServer final : public BrowserBridge {
public:
    static constexpr std::size_t kMaxConnections = 16;

    // Listens on `socketPath`, taking the place of a socket file left there by an earlier run (one
    // tracker per session guards against a live one). `clock` stamps the reports and must outlive
    // the server. A server that cannot listen reports nothing.
    BrowserBridgeServer(std::string socketPath, const Clock& clock);
    // Stops and joins the thread and removes the socket file.
    ~BrowserBridgeServer() override;
    BrowserBridgeServer(const BrowserBridgeServer&) = delete;
    BrowserBridgeServer& operator=(const BrowserBridgeServer&) = delete;

    bool listening() const { return listenFd_ >= 0; }

    std::optional<BrowserTabReport> latestReport(std::int64_t pid) override;
    std::vector<BrowserTabReport> latestReports() override;

private:
    struct Connection;

    void run();
    // Reads what the host sent; false when the connection is over.
    bool readFrom(Connection& connection);
    void take(Connection& connection, std::string_view frame);

    const std::string socketPath_;
    const Clock& clock_;
    int listenFd_ = -1;
    int wakePipe_[2] = {-1, -1};  // written once to stop the thread

    std::mutex mutex_;
    std::map<int, BrowserTabReport> reports_;  // by connection, the latest report of each
    std::thread thread_;
};

}  // namespace larkspan
