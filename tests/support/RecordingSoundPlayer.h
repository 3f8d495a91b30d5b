// Remembers the names of the sounds it was asked to play.
#pragma once

#include <string>
#include <vector>

#include "Platform/SoundPlayer.h"

namespace larkspan::test {

class RecordingSoundPlayer final : public SoundPlayer {
public:
    void play(const std::string& name) override { played.push_back(name); }
    std::vector<std::string> played;
};

}  // namespace larkspan::test
