#include <gtest/gtest.h>

#include "Analytics/CalendarMonth.h"
#include "Analytics/CalendarSummary.h"
#include "Classification/Palette.h"
#include "LocalInstant.h"
#include "ScopedTimeZone.h"

namespace larkspan::analytics {
namespace {

using namespace test;

DaySummary day(Date date, std::int64_t total, std::int64_t productive,
               std::map<std::int64_t, std::int64_t> by = {}) {
    return DaySummary{date, total, productive, std::move(by)};
}

TEST(Calendar, GridStartsOnSundayWithLeadingEmptyCellsOnly) {
    ScopedTimeZone zone{"Europe/Berlin"};
    struct Case {
        YearMonth month;
        std::size_t empty;
        std::size_t days;
    };
    for (const Case& c : {Case{{2026, 2}, 0, 28},     // begins on a Sunday: four full rows
                          Case{{2026, 8}, 6, 31},     // begins on a Saturday: 37 cells, six rows
                          Case{{2026, 6}, 1, 30},     // begins on a Monday
                          Case{{2028, 2}, 2, 29},     // leap February
                          Case{{2026, 3}, 0, 31}}) {  // the day summer time begins keeps its midnight
        SCOPED_TRACE(c.month.month);
        const auto cells = gridDates(c.month);
        ASSERT_EQ(cells.size(), c.empty + c.days);
        for (std::size_t i = 0; i < cells.size(); ++i)
            EXPECT_EQ(cells[i].has_value(), i >= c.empty);
        EXPECT_EQ(*cells.back(), localInstant(c.month.year, c.month.month, static_cast<int>(c.days)));
    }
    EXPECT_TRUE(gridDates({2026, 13}).empty());
}

TEST(Calendar, MonthsMoveByCalendarMonth) {
    ScopedTimeZone zone{"America/New_York"};
    const YearMonth january = monthOf(localInstant(2026, 1, 31, 23, 30));
    EXPECT_EQ(addMonths(january, 1), (YearMonth{2026, 2}));
    EXPECT_EQ(addMonths(january, -1), (YearMonth{2025, 12}));
    EXPECT_EQ(addMonths({2026, 12}, 1), (YearMonth{2027, 1}));
}

TEST(Calendar, CellsTakeTheirDaysSummaryCountAndState) {
    ScopedTimeZone zone{"Europe/Berlin"};
    const Date now = localInstant(2026, 3, 17, 12);
    const std::vector<DaySummary> summaries{day(localInstant(2026, 3, 3), 4 * 3600 + 12 * 60, 10300)};
    const auto cells = dayCells({2026, 3}, summaries, {{"2026-03-03", 3}, {"2026-02-28", 9}},
                                localInstant(2026, 3, 3, 18), now);
    ASSERT_EQ(cells.size(), 31u);
    const DayCell& third = *cells[2];
    EXPECT_EQ(third.day, 3);
    EXPECT_TRUE(third.isSelected);
    EXPECT_EQ(dayFigures(third), "4h 12m, 68 % productive, 3 pomodoros");
    EXPECT_FALSE(cells[0]->summary);  // not loaded
    EXPECT_EQ(dayFigures(*cells[0]), "nothing tracked");
    EXPECT_TRUE(cells[16]->isToday && !cells[16]->isFuture);
    EXPECT_TRUE(cells[17]->isFuture);
    EXPECT_EQ(std::count_if(cells.begin(), cells.end(), [](const auto& c) { return c->pomoCount > 0; }), 1);
}

TEST(Calendar, CircleHoursAndCountOfADay) {
    struct Case {
        std::optional<DaySummary> summary;
        std::optional<Tint> color;
        std::string hours;
    };
    const Case cases[] = {
        {std::nullopt, std::nullopt, ""},
        {day(0, 0, 0), std::nullopt, ""},
        {day(0, 300, 300), std::nullopt, "0h"},  // tracked, yet rounds to nothing
        {day(0, 600, 600), std::nullopt, "0h"},
        {day(0, 660, 660), Tint{Palette::green, 0.7}, "0h"},
        {day(0, 5 * 3600, 3 * 3600), Tint{Palette::orange, 0.35}, "5h"},  // exactly 0.6
        {day(0, 10000, 3000), Tint{Palette::red, 0.3}, "3h"},             // exactly 0.3
        {day(0, 10000, 3001), Tint{Palette::orange, 0.35}, "3h"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.summary ? c.summary->totalSeconds : -1);
        DayCell cell;
        cell.summary = c.summary;
        const auto color = productivityColor(cell);
        ASSERT_EQ(color.has_value(), c.color.has_value());
        if (color) {
            EXPECT_EQ(color->color, c.color->color);
            EXPECT_NEAR(color->opacity, c.color->opacity, 1e-9);
        }
        EXPECT_EQ(hoursText(cell), c.hours);
    }
    DayCell cell;
    EXPECT_EQ(pomodoroText(cell), "");
    cell.pomoCount = 4;
    EXPECT_EQ(pomodoroText(cell), "\U0001F3454");
}

TEST(Calendar, MonthSummaryCountsActiveDaysOnly) {
    const auto values = [](const std::array<StatCard, 4>& cards) {
        return std::vector<std::string>{cards[0].value, cards[1].value, cards[2].value, cards[3].value};
    };
    // No active day: no division by zero.
    EXPECT_EQ(values(statCards(monthStats({day(0, 0, 0)}, {}))),
              (std::vector<std::string>{"0", "0.0h", "0%", "\U0001F345 0"}));

    const std::vector<DaySummary> days{day(0, 7200, 4321, {{1, 7000}, {99, 200}}), day(0, 0, 0),
                                       day(0, 3600, 2160, {{1, 3590}, {5, 10}})};
    const MonthStats stats = monthStats(days, {{"2026-03-01", 2}, {"2026-03-09", 5}});
    const auto cards = statCards(stats);
    // Hours per active day; 60.009 % truncates, and 60 is not above 60.
    EXPECT_EQ(values(cards), (std::vector<std::string>{"2", "1.5h", "60%", "\U0001F345 7"}));
    EXPECT_EQ(cards[2].color, Palette::orange);

    const auto totals = combinedTotals(days);
    const auto bar =
        categoryShares(totals, kBarSegments, stats.totalSeconds, 540, categoriesByID(Category::seeded()));
    ASSERT_EQ(bar.size(), 3u);
    EXPECT_EQ(bar[0].categoryID, 1);
    EXPECT_NEAR(bar[0].width, 540.0 * 10590 / 10800, 1e-9);
    EXPECT_EQ(bar[1].name, "Other");  // 99 is not in the catalogue
    EXPECT_EQ(bar[1].color, Palette::grey);
    EXPECT_EQ(bar[2].width, kNarrowestSegment);
    EXPECT_EQ(categoryShares(totals, 2, stats.totalSeconds, 0, {}).size(), 2u);
}

}  // namespace
}  // namespace larkspan::analytics
