#include "Review/IdleReturn.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace larkspan {
namespace {

TEST(IdleReturn, FormatsWholeMinutesThenHoursAndMinutes) {
    const std::vector<std::pair<double, const char*>> cases = {
        {0, "0 min"},
        {59, "0 min"},
        {59.99, "0 min"},
        {60, "1 min"},
        {3599, "59 min"},
        {3600, "1h 0m"},
        {3659.9, "1h 0m"},
        {5400, "1h 30m"},
        {86400, "24h 0m"},
        {301.5, "5 min"},
        // Nonsense from a clock that jumped reads as nothing rather than a negative span.
        {-90, "0 min"},
        {std::numeric_limits<double>::quiet_NaN(), "0 min"},
    };
    for (const auto& [seconds, text] : cases)
        EXPECT_EQ(IdleReturn::formatDuration(seconds), text) << seconds;
    // An absurd span saturates instead of overflowing.
    EXPECT_FALSE(IdleReturn::formatDuration(std::numeric_limits<double>::infinity()).empty());
}

TEST(IdleReturn, SaysHowLongTheUserWasAway) {
    EXPECT_EQ(IdleReturn(754, nullptr).message(), "You were away for 12 min. What were you doing?");
    EXPECT_EQ(IdleReturn(5400, nullptr).message(), "You were away for 1h 30m. What were you doing?");
}

TEST(IdleReturn, EachOptionAnswersItsCategoryAndDismissIsBreak) {
    const std::vector<std::int64_t> expected = {15, 15, 6, 15, 6};
    for (std::size_t i = 0; i < IdleReturn::options.size(); ++i) {
        std::vector<std::int64_t> given;
        IdleReturn card(400, [&](std::int64_t id) { given.push_back(id); });
        card.choose(i);
        EXPECT_EQ(given, std::vector<std::int64_t>{expected[i]}) << IdleReturn::options[i].label;
    }
    std::vector<std::int64_t> dismissed, broke;
    IdleReturn(400, [&](std::int64_t id) { dismissed.push_back(id); }).dismiss();
    IdleReturn(400, [&](std::int64_t id) { broke.push_back(id); }).choose(0);
    EXPECT_EQ(dismissed, broke);
}

TEST(IdleReturn, AnswersOnceAndIgnoresUnknownOptions) {
    std::vector<std::int64_t> given;
    IdleReturn card(400, [&](std::int64_t id) { given.push_back(id); });
    card.choose(5);
    card.choose(static_cast<std::size_t>(-1));
    EXPECT_TRUE(given.empty());
    EXPECT_FALSE(card.isAnswered());
    card.choose(2);
    card.dismiss();
    card.choose(0);
    EXPECT_EQ(given, std::vector<std::int64_t>{6});
    EXPECT_TRUE(card.isAnswered());
}

}  // namespace
}  // namespace larkspan
