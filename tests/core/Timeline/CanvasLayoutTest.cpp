#include "Timeline/CanvasLayout.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "ActivityBuilder.h"
#include "LocalInstant.h"
#include "ScopedTimeZone.h"

namespace larkspan {
namespace {

using test::ActivityBuilder;

constexpr Date kDayStart = 1'763'856'000;  // a midnight in UTC; layout only measures from it

Date at(int h, int m, int s = 0) {
    return kDayStart + h * 3600 + m * 60 + s;
}

TimelineChapter work(Date from, Date to) {
    static std::int64_t nextID = 1;
    return makeChapter({ActivityBuilder(nextID++, from, wholeSecondsBetween(from, to)).endingAt(to)});
}

TimelineChapter away(Date from, Date to) {
    static std::int64_t nextID = 1000;
    return makeChapter({ActivityBuilder::away(nextID++, from, wholeSecondsBetween(from, to)).endingAt(to)});
}

// Frames are compared to the hundredth of a point, the precision the expected values are written in.
void expectFrames(const std::vector<PositionedChapter>& got, const std::vector<CanvasRect>& want) {
    ASSERT_EQ(got.size(), want.size());
    for (std::size_t i = 0; i < want.size(); ++i) {
        const CanvasRect& g = got[i].frame;
        EXPECT_NEAR(g.x, want[i].x, 0.005) << "frame " << i;
        EXPECT_NEAR(g.y, want[i].y, 0.005) << "frame " << i;
        EXPECT_NEAR(g.width, want[i].width, 0.005) << "frame " << i;
        EXPECT_NEAR(g.height, want[i].height, 0.005) << "frame " << i;
    }
}

TEST(CanvasLayout, FramesOfTheEdgeCases) {
    struct Case {
        const char* name;
        std::vector<TimelineChapter> chapters;
        std::vector<CanvasRect> frames;
    };
    const Case cases[] = {
        {"two minutes take the minimum height", {work(at(9, 0), at(9, 2))}, {{8, 900, 290, 22}}},
        {"more than 4 points of overlap opens lane 1",
         {work(at(9, 0), at(9, 0, 30)), work(at(9, 10, 31), at(9, 30))},
         {{8, 900, 145, 22}, {153, 917.53, 145, 32.47}}},
        {"2.83 points of overlap stay in lane 0 at full width",
         {work(at(9, 0), at(9, 1)), work(at(9, 11, 30), at(9, 30))},
         {{8, 900, 290, 22}, {8, 919.17, 290, 30.83}}},
        {"a chapter after a raised bar moves below it",
         {work(at(9, 0), at(10, 5)), away(at(10, 5), at(10, 20)), work(at(10, 20), at(11, 0))},
         {{8, 900, 290, 108.33}, {8, 1008.33, 290, 28}, {8, 1038.33, 290, 66.67}}},
        {"a short chapter before a break lands under the bar",
         {work(at(9, 0), at(9, 1)), away(at(9, 1), at(9, 21)), work(at(9, 21), at(9, 40))},
         {{8, 937, 145, 22}, {8, 901.67, 290, 33.33}, {153, 937, 145, 31.67}}},
        {"a long chapter narrows along its whole height; a later one alone is full width",
         {work(at(9, 0), at(10, 0)), work(at(9, 30), at(9, 31)), work(at(9, 50), at(9, 51)),
          work(at(10, 30), at(10, 40))},
         {{8, 900, 145, 100}, {153, 950, 145, 22}, {153, 983.33, 145, 22}, {8, 1050, 290, 22}}},
        {"with both lanes taken the emptier one is used further down",
         {work(at(9, 0), at(9, 30)), work(at(9, 5), at(9, 35)), work(at(9, 10), at(9, 11))},
         {{8, 900, 145, 50}, {153, 908.33, 145, 50}, {8, 952, 145, 22}}},
        {"a chapter over midnight ends at the day's end",
         {work(at(23, 50), at(24, 10))},
         {{8, 2383.33, 290, 22}}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const std::vector<PositionedChapter> positioned = layoutChapters(c.chapters, kDayStart);
        expectFrames(positioned, c.frames);
        for (std::size_t i = 0; i < positioned.size(); ++i)
            EXPECT_EQ(positioned[i].chapter, c.chapters[i]);
    }
}

TEST(CanvasLayout, ChaptersWithoutTimeInTheDayAreLeftOut) {
    const TimelineChapter justOpened = makeChapter({ActivityBuilder(1, at(8, 0), 0).open()});
    const std::vector<TimelineChapter> chapters = {
        work(at(-2, 0), at(0, 0)),   // ends exactly at the day's start
        work(at(-1, 0), at(0, 30)),  // began the day before: cut at the top
        justOpened,                  // no length, though its wallSeconds is 1
        work(at(9, 0), at(9, 30)),
        away(at(24, 0), at(24, 20)),  // starts exactly at the next midnight: pushes nothing
        work(at(25, 0), at(26, 0)),
    };
    const std::vector<PositionedChapter> positioned = layoutChapters(chapters, kDayStart);
    ASSERT_EQ(positioned.size(), 2u);
    EXPECT_EQ(positioned[0].chapter.id(), chapters[1].id());
    EXPECT_EQ(positioned[1].chapter.id(), chapters[3].id());
    expectFrames(positioned, {{8, 0, 290, 50}, {8, 900, 290, 50}});

    const TimelineChapter broken = makeChapter({ActivityBuilder(2, std::nan(""), 60)});
    EXPECT_TRUE(layoutChapters({broken}, kDayStart).empty());
}

TEST(CanvasLayout, CanvasHeightFollowsTheLastFrameNotTheLowest) {
    EXPECT_EQ(canvasHeight({}), 2400);
    EXPECT_NEAR(canvasHeight(layoutChapters({work(at(23, 50), at(24, 10))}, kDayStart)), 2445.33, 0.005);

    // The chapter is pushed below the bar, but the bar comes last in the list.
    const std::vector<PositionedChapter> pushed =
        layoutChapters({work(at(23, 30), at(23, 31)), away(at(23, 31), at(23, 59))}, kDayStart);
    expectFrames(pushed, {{8, 2400.33, 290, 22}, {8, 2351.67, 290, 46.67}});
    EXPECT_NEAR(canvasHeight(pushed), 2438.33, 0.005);
}

TEST(CanvasLayout, DayWithAClockChangeIsCutAfter86400ElapsedSeconds) {
    test::ScopedTimeZone zone("Europe/Berlin");
    const Date dayStart = test::localInstant(2026, 10, 25);  // clocks go back at 03:00: 25 hours
    const Date lateEvening = dayStart + 23.5 * 3600;         // 22:30 on the wall clock
    const std::vector<PositionedChapter> positioned = layoutChapters(
        {work(lateEvening, lateEvening + 3600), work(lateEvening + 3600, lateEvening + 5400)}, dayStart);
    expectFrames(positioned, {{8, 2350, 290, 50}});
}

TEST(CanvasLayout, AnchorsAndTheNowLine) {
    EXPECT_DOUBLE_EQ(nowLineY(kDayStart, at(9, 30)), 950);
    EXPECT_NEAR(nowLineY(kDayStart, at(0, 20)), 33.33, 0.005);

    test::ScopedTimeZone zone("America/New_York");
    const Date twentyPastMidnight = test::localInstant(2026, 11, 23, 0, 20);
    EXPECT_EQ(scrollAnchorHour(twentyPastMidnight), 0);  // not hour -1
    EXPECT_EQ(scrollAnchorHour(twentyPastMidnight + 9.5 * 3600), 8);
    EXPECT_EQ(scrollAnchorHour(std::numeric_limits<double>::quiet_NaN()), 0);
    {
        test::ScopedTimeZone utc("UTC");  // the same instant is 05:20 there
        EXPECT_EQ(scrollAnchorHour(twentyPastMidnight), 4);
    }
}

}  // namespace
}  // namespace larkspan
