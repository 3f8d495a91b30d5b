#include "Platform/Linux/CanberraSoundPlayer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>

namespace larkspan {
namespace {

TEST(CanberraSoundPlayer, EachTimerSoundHasItsOwnThemeEvent) {
    std::set<std::string_view> events;
    for (const char* name : {"Tink", "Pop", "Funk", "Glass", "Ping"}) {
        const auto event = CanberraSoundPlayer::eventID(name);
        ASSERT_TRUE(event) << name;
        EXPECT_TRUE(events.insert(*event).second) << name << " shares " << *event;
    }
    for (const char* name : {"tink", "Basso", "", "Tink "})
        EXPECT_FALSE(CanberraSoundPlayer::eventID(name)) << name;
}

TEST(CanberraSoundPlayer, WithoutASoundServerNothingPlaysAndOneLineSaysSo) {
    std::ostringstream diagnostics;
    // A backend that does not exist stands for a session without a sound server.
    CanberraSoundPlayer player("larkspan-no-such-driver", diagnostics);
    for (const char* name : {"Tink", "Glass", "Ping", "Tink"})
        player.play(name);
    const auto text = diagnostics.str();
    EXPECT_NE(text.find("no sound server"), std::string::npos) << text;
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1) << text;
}

}  // namespace
}  // namespace larkspan
