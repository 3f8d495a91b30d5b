#include "App/QuickSummary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "ActivityBuilder.h"
#include "CategorizedRecord.h"

namespace larkspan {
namespace {

using test::ActivityBuilder;

DaySummary summaryOf(std::map<std::int64_t, std::int64_t> byCategory, std::int64_t productive) {
    DaySummary summary;
    summary.byCategory = std::move(byCategory);
    for (const auto& entry : summary.byCategory)
        summary.totalSeconds += entry.second;
    summary.productiveSeconds = productive;
    return summary;
}

TEST(QuickSummary, FormatSecondsTruncatesAtEachUnit) {
    const std::pair<std::int64_t, const char*> cases[] = {
        {59, "59s"}, {60, "1m"}, {3599, "59m"}, {3600, "1h 0m"}, {3600 * 25 + 61, "25h 1m"}};
    for (const auto& [seconds, text] : cases)
        EXPECT_EQ(formatSeconds(seconds), text) << seconds;
    // A clock set back leaves a negative duration; it reads as seconds rather than failing.
    EXPECT_EQ(formatSeconds(-5), "-5s");
    EXPECT_EQ(formatSeconds(INT64_MAX), "2562047788015215h 30m");
}

TEST(QuickSummary, RecentListKeepsOnlyLongerThanThirtySecondsNewestFirstAndShowsFive) {
    std::vector<ActivityRecord> rows = {
        ActivityBuilder(1, 1000, 30).title("exactly thirty"),
        ActivityBuilder(2, 2000, 31).title("thirty-one").category(category_id::coding),
        ActivityBuilder(3, 500, 0).open(),  // running, no heartbeat yet
        ActivityBuilder(4, 3000, 600).category(999),
    };
    for (int i = 0; i < 5; ++i)
        rows.push_back(ActivityBuilder(10 + i, 100 + i, 45));
    const auto recent = recentActivities(rows);
    std::vector<std::int64_t> ids;
    std::ranges::transform(recent, std::back_inserter(ids), &ActivityRecord::id);
    EXPECT_EQ(ids, (std::vector<std::int64_t>{4, 2, 14, 13, 12, 11, 10}));

    const auto shown = recentRows(recent, test::seededMap());
    ASSERT_EQ(shown.size(), 5u);
    // An unknown category shows a question mark; a known one its icon.
    EXPECT_EQ(shown[0].icon, "\u2753");
    EXPECT_EQ(shown[1].icon, "\U0001F4BB");
}

TEST(QuickSummary, BreakdownShowsTopFourWithFractionsOfTheDaysTotal) {
    // Five categories: the smallest drops out, and the fractions still divide by all five.
    const DaySummary five = summaryOf({{1, 400}, {2, 300}, {3, 200}, {4, 60}, {5, 40}}, 1000);
    const Breakdown shown = breakdown(five, test::seededMap());
    ASSERT_TRUE(shown.hasData);
    ASSERT_EQ(shown.bars.size(), 4u);
    EXPECT_DOUBLE_EQ(shown.bars[0].fraction, 0.4);
    EXPECT_EQ(shown.bars[3].category.id, 4);
    EXPECT_DOUBLE_EQ(shown.bars[3].fraction, 0.06);

    // A category that is gone takes its place among the four without being drawn.
    const DaySummary withUnknown = summaryOf({{1, 400}, {77, 300}, {3, 200}, {4, 60}, {5, 40}}, 0);
    const Breakdown skipped = breakdown(withUnknown, test::seededMap());
    ASSERT_EQ(skipped.bars.size(), 3u);
    EXPECT_EQ(skipped.bars[2].category.id, 4);

    // Nothing to show: no summary, or an empty day.
    EXPECT_FALSE(breakdown(DaySummary{}, test::seededMap()).hasData);
    // Only zero-second entries: drawn, each with an empty bar.
    const Breakdown zero = breakdown(summaryOf({{1, 0}}, 0), test::seededMap());
    ASSERT_EQ(zero.bars.size(), 1u);
    EXPECT_EQ(zero.bars[0].fraction, 0);
}

TEST(QuickSummary, ProductivityLineTruncatesAndColoursByStrictThresholds) {
    using enum ProductivityTone;
    // Productive and total seconds, then the percentage and its tone.
    const std::tuple<std::int64_t, std::int64_t, int, ProductivityTone> cases[] = {{61, 100, 61, green},
                                                                                   {60, 100, 60, orange},
                                                                                   {31, 100, 31, orange},
                                                                                   {30, 100, 30, red},
                                                                                   {2, 3, 66, green}};
    for (const auto& [productive, total, percent, tone] : cases) {
        const auto line = productivityLine(summaryOf({{1, total}}, productive));
        ASSERT_TRUE(line) << productive << "/" << total;
        EXPECT_EQ(std::tie(line->percent, line->tone), std::tie(percent, tone)) << productive << "/" << total;
        EXPECT_EQ(line->text, std::to_string(percent) + "% productive today");
    }
    EXPECT_FALSE(productivityLine(DaySummary{}));
}

TEST(QuickSummary, SessionRowFallsBackForMissingSessionOrCategory) {
    const auto& categories = test::seededMap();
    EXPECT_FALSE(sessionRow(std::nullopt, categories).hasSession);

    const SessionRow coding = sessionRow(
        ActivityRecord(ActivityBuilder(1, 0, 0).app("Code").title("main.cpp").category(1)), categories);
    EXPECT_EQ(coding.subtitle, "Coding \u2022 Now");

    // No category, or one that no longer exists: stopwatch, "Uncategorized", grey dot.
    for (std::optional<std::int64_t> id : {std::optional<std::int64_t>{}, std::optional<std::int64_t>{404}}) {
        const SessionRow row =
            sessionRow(ActivityRecord(ActivityBuilder(1, 0, 0).app("Xterm").category(id)), categories);
        EXPECT_EQ(row.subtitle, "Uncategorized \u2022 Now");
        EXPECT_FALSE(row.dot);
        EXPECT_TRUE(row.hasSession);
    }
}

TEST(QuickSummary, PendingTextsCountTheActivities) {
    EXPECT_EQ(pendingBannerText(3), "3 activities need review");
    EXPECT_EQ(pendingFooterText(12), "12 pending");
}

}  // namespace
}  // namespace larkspan
