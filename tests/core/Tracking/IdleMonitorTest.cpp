#include "Tracking/IdleMonitor.h"

#include <gtest/gtest.h>

namespace larkspan {
namespace {

TEST(IdleMonitor, ListedBrowsersAndPlayersByPrefixGetFiveMinutesEverythingElseTwo) {
    const std::pair<std::optional<std::string>, double> cases[] = {
        {std::nullopt, 120.0},
        {"", 120.0},
        {"com.google.Chrome.canary", 300.0},  // a prefix test
        {"com.apple.Music", 300.0},           // the last entry
        {"com.apple.Mus", 120.0},             // not a prefix of it
        {"org.larkspan.role.video", 300.0},
    };
    for (const auto& [bundleID, threshold] : cases)
        EXPECT_EQ(IdleMonitor::idleThreshold(bundleID), threshold) << bundleID.value_or("(absent)");
}

}  // namespace
}  // namespace larkspan
