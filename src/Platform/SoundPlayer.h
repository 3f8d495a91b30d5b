// Short system sounds, by name ("Tink", "Pop", "Funk", "Glass", "Ping").
#pragma once

#include <string>

namespace larkspan {

class SoundPlayer {
public:
    virtual ~SoundPlayer() = default;
    // Starts the sound and returns at once. An unknown name, or no sound server, plays nothing.
    virtual void play(const std::string& name) = 0;
};

}  // namespace larkspan
