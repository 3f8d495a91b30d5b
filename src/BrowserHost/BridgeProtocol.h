// What travels over the browser bridge. The extension talks to the host in the browsers' native
// messaging frames: a 4-byte length in the machine's byte order, then that many bytes of UTF-8 JSON.
// The host forwards each checked report to the tracker in the same framing over a Unix socket.
//
// Reports are small (an address and a title, a few hundred bytes); a frame above kMaxFrameBytes is
// never buffered but skipped as its bytes arrive, so a reader holds at most one frame in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace larkspan {

inline constexpr std::size_t kMaxFrameBytes = 1024 * 1024;

// The tracker's socket: "larkspan-browser-bridge" in $XDG_RUNTIME_DIR; empty when that is not set.
std::string bridgeSocketPath();

// `body` behind its length prefix.
std::string encodeFrame(std::string_view body);

// Cuts a byte stream into frames, whatever pieces the bytes arrive in.
class FrameReader {
public:
    struct Frame {
        std::string body;        // empty when oversized
        bool oversized = false;  // announced more than the limit; its bytes were dropped
        bool operator==(const Frame&) const = default;
    };

    explicit FrameReader(std::size_t limit = kMaxFrameBytes) : limit_(limit) {}

    // Takes the next bytes of the stream and appends the frames they complete to `frames`, in order.
    // An oversized frame is announced as soon as its length is read.
    void feed(std::string_view bytes, std::vector<Frame>& frames);
    // Whether the bytes so far end inside a frame: at the end of the stream, a truncated message.
    bool midFrame() const { return header_.size() > 0 || inFrame_; }

private:
    const std::size_t limit_;
    std::string header_;    // the length bytes read so far
    std::string body_;      // the frame being read
    std::size_t want_ = 0;  // bytes still to come of the frame (or to skip)
    bool inFrame_ = false;
    bool skipping_ = false;
};

// A tab as the extension reports it. A private tab carries no address and no title.
struct TabMessage {
    bool isPrivate = false;
    std::string url;
    std::string title;
    bool operator==(const TabMessage&) const = default;
};

// The extension's message: {"private": false, "url": text, "title": text} or {"private": true}.
// Other fields are ignored; the address and title of a private tab are dropped. Nothing when the
// body is not UTF-8 JSON of that shape.
std::optional<TabMessage> parseExtensionMessage(std::string_view body);

// What the tracker receives: the tab and the pid of the browser process that reported it.
struct ForwardedReport {
    std::int64_t pid = 0;
    TabMessage tab;
    bool operator==(const ForwardedReport&) const = default;
};

std::string forwardedMessage(const ForwardedReport& report);
// Nothing unless `body` is a forwarded message with a positive pid.
std::optional<ForwardedReport> parseForwardedMessage(std::string_view body);

}  // namespace larkspan
