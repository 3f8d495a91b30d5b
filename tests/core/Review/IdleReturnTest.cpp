#include "Review/IdleReturn.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace larkspan {
namespace {

TEST(IdleReturn, FormatsWholeMinutesThenHoursAndMinutes) {
    const std::vector<std::pair<double, const char*>> cases = {
        {59.99, "0 min"},
        {60, "1 min"},
        {3599, "59 min"},
        {3659.9, "1h 0m"},
        {86400, "24h 0m"},
        // Nonsense from a clock that jumped reads as nothing rather than a negative span.
        {-90, "0 min"},
        {std::numeric_limits<double>::quiet_NaN(), "0 min"},
    };
    for (const auto& [seconds, text] : cases)
        EXPECT_EQ(IdleReturn::formatDuration(seconds), text) << seconds;
    // An absurd span saturates instead of overflowing.
    EXPECT_FALSE(IdleReturn::formatDuration(std::numeric_limits<double>::infinity()).empty());
}

TEST(IdleReturn, TheCardAnswersOnceAndDismissIsBreak) {
    std::vector<std::int64_t> given;
    IdleReturn card(400, [&](std::int64_t id) { given.push_back(id); });
    card.choose(5);  // unknown options are ignored
    card.choose(static_cast<std::size_t>(-1));
    EXPECT_FALSE(card.isAnswered());
    card.dismiss();
    card.choose(2);
    EXPECT_EQ(given, std::vector<std::int64_t>{category_id::awayBreak});
    EXPECT_TRUE(card.isAnswered());
}

}  // namespace
}  // namespace larkspan
