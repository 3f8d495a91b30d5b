// The timer's short sounds, played as freedesktop sound-theme events through libcanberra, which
// hands them to the session's sound server. Playback never blocks and never fails towards the
// caller: an unknown name plays nothing, and without a sound server nothing plays and one line
// on the diagnostics stream says why.
#pragma once

#include <iosfwd>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

#include "Platform/SoundPlayer.h"

struct ca_context;

namespace larkspan {

class CanberraSoundPlayer final : public SoundPlayer {
public:
    // `driver` picks a libcanberra backend ("pulse", "alsa"); empty lets libcanberra choose.
    explicit CanberraSoundPlayer(std::string driver = {});
    CanberraSoundPlayer(std::string driver, std::ostream& diagnostics);
    ~CanberraSoundPlayer() override;
    CanberraSoundPlayer(const CanberraSoundPlayer&) = delete;
    CanberraSoundPlayer& operator=(const CanberraSoundPlayer&) = delete;

    void play(const std::string& name) override;

    // The sound-theme event id for one of "Tink", "Pop", "Funk", "Glass", "Ping"; nothing otherwise.
    static std::optional<std::string_view> eventID(std::string_view name);

private:
    // Opens the context if needed; false when no sound server can be reached right now.
    bool ensureOpen();
    void reportOnce(int error);

    const std::string driver_;
    std::ostream& diagnostics_;
    std::mutex mutex_;
    ca_context* context_ = nullptr;
    bool reported_ = false;
};

}  // namespace larkspan
