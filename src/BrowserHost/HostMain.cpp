// larkspan-browser-host: the native messaging host of Larkspan's browser extension. The browser
// starts it with the extension's messages on stdin; it checks each one, adds the pid of the browser
// (its parent process) and passes it on to the tracker. It writes nothing back, runs nothing it
// receives and opens no network port. It ends when the browser closes its stdin.
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "BrowserHost/BridgeProtocol.h"
#include "BrowserHost/TrackerLink.h"

using namespace larkspan;

int main() {
    std::signal(SIGPIPE, SIG_IGN);
    const std::int64_t browserPid = ::getppid();
    TrackerLink tracker(bridgeSocketPath());
    FrameReader reader;
    std::vector<FrameReader::Frame> frames;
    bool toldMalformed = false;
    std::vector<char> buffer(64 * 1024);

    for (;;) {
        const ssize_t count = ::read(STDIN_FILENO, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break;
        frames.clear();
        reader.feed({buffer.data(), static_cast<std::size_t>(count)}, frames);
        for (const auto& frame : frames) {
            auto tab = frame.oversized ? std::nullopt : parseExtensionMessage(frame.body);
            if (!tab) {
                if (!std::exchange(toldMalformed, true))
                    std::fputs("larkspan-browser-host: dropped a malformed message\n", stderr);
                continue;
            }
            tracker.send(encodeFrame(forwardedMessage({browserPid, std::move(*tab)})));
        }
    }
    return 0;
}
