#include "Timeline/TimelineGrouping.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ActivityBuilder.h"
#include "Timeline/TimelineLabels.h"

namespace larkspan {
namespace {

using test::ActivityBuilder;

constexpr Date kNine = 1'763'888'400;  // some morning; grouping never looks at local days

ActivityBuilder page(std::int64_t id, Date start, std::int64_t seconds, std::string host) {
    ActivityBuilder b(id, start, seconds);
    b.app("Firefox", "org.mozilla.firefox").domain(std::move(host)).title("some page");
    return b;
}

// The number of activities in each block or chapter.
template <typename Group>
std::vector<std::size_t> groupSizes(const std::vector<Group>& groups) {
    std::vector<std::size_t> counts;
    for (const Group& g : groups)
        counts.push_back(g.activities.size());
    return counts;
}

TEST(TimelineBlocks, StitchingGapIsMeasuredFromTheVisitAppendedLast) {
    // 300.0 seconds after the last visit stitches, 301 does not.
    for (auto [gap, sizes] :
         {std::pair{300.0, std::vector<std::size_t>{2}}, std::pair{301.0, std::vector<std::size_t>{1, 1}}}) {
        const std::vector<ActivityRecord> day = {page(1, kNine, 60, "a.org"),
                                                 page(2, kNine + 60 + gap, 60, "a.org")};
        EXPECT_EQ(groupSizes(computeBlocks(day, 0, true)), sizes) << gap;
    }

    // A long visit, an overlapping short one inside it, then one 301 s after the short one ends: the
    // negative gap stitches, the next is measured from the short visit, not from the latest end.
    const std::vector<ActivityRecord> day = {
        page(1, kNine, 1000, "a.org"), page(2, kNine + 100, 100, "a.org"), page(3, kNine + 501, 60, "a.org")};
    const std::vector<TimelineBlock> blocks = computeBlocks(day, 0, true);
    ASSERT_EQ(groupSizes(blocks), (std::vector<std::size_t>{2, 1}));
    EXPECT_EQ(blocks[0].endTime, kNine + 200);     // the end of the last visit, not the latest end
    EXPECT_EQ(blocks[0].durationSeconds(), 1100);  // overlaps count in full
}

TEST(TimelineBlocks, AnyOtherResourceBetweenTwoVisitsKeepsThemApart) {
    const std::vector<ActivityRecord> day = {page(1, kNine, 60, "a.org"), page(2, kNine + 60, 1, "b.org"),
                                             page(3, kNine + 61, 60, "a.org")};
    EXPECT_EQ(groupSizes(computeBlocks(day, 0, true)), (std::vector<std::size_t>{1, 1, 1}));

    // The duration filter removes the short visit first, and its time becomes a gap that stitches.
    EXPECT_EQ(groupSizes(computeBlocks(day, 60, true)), (std::vector<std::size_t>{2}));
    // Without the switch nothing is merged at all.
    EXPECT_EQ(groupSizes(computeBlocks(day, 60, false)), (std::vector<std::size_t>{1, 1}));
    // Chapters filter too.
    EXPECT_TRUE(computeChapters(day, 61, true).empty());
}

TEST(TimelineBlocks, OpenActivityEndsAtStartPlusDuration) {
    const std::vector<ActivityRecord> day = {page(1, kNine, 100, "a.org").open(),
                                             page(2, kNine + 400, 0, "a.org").open()};
    const std::vector<TimelineBlock> blocks = computeBlocks(day, 0, true);
    ASSERT_EQ(blocks.size(), 1u);  // the gap is 300 from start + duration
    EXPECT_EQ(blocks[0].endTime, kNine + 400);

    const std::vector<TimelineChapter> chapters = computeChapters({day[1]}, 0, true);
    ASSERT_EQ(chapters.size(), 1u);
    EXPECT_EQ(chapters[0].endTime, kNine + 400);
    EXPECT_EQ(chapters[0].wallSeconds(), 1);  // a chapter without length still covers a second
}

TEST(TimelineBlocks, CategoryAndPrimaryAreTheLongestVisitEarliestFirst) {
    const std::vector<ActivityRecord> day = {page(1, kNine, 50, "a.org").category(3),
                                             page(2, kNine + 60, 80, "a.org").category(std::nullopt),
                                             page(3, kNine + 150, 80, "a.org").category(5)};
    const TimelineBlock block = computeBlocks(day, 0, true).at(0);
    EXPECT_EQ(block.primary().id, 2);
    EXPECT_EQ(block.categoryID, std::nullopt);
}

TEST(TimelineResources, KeysFollowSiteEditorAndTitleRules) {
    // A site: application and domain, whatever the title.
    EXPECT_EQ(resourceKey(page(1, kNine, 1, "a.org").title("x")),
              resourceKey(page(2, kNine, 1, "a.org").title("y")));
    // An empty domain falls through to the title; an absent bundle id to the application name.
    EXPECT_EQ(resourceKey(ActivityBuilder(1, kNine, 1).app("Firefox").domain("").title("Docs")),
              "Firefox|Docs");
    // An editor is one resource whichever window is in front.
    EXPECT_EQ(resourceKey(ActivityBuilder(1, kNine, 1).app("Code", "com.microsoft.VSCode").title("a.cpp")),
              "com.microsoft.VSCode");
    // Without a title, the application name stands in for it.
    EXPECT_EQ(resourceKey(ActivityBuilder(1, kNine, 1).app("Gimp", "org.gimp.GIMP").title(std::nullopt)),
              "org.gimp.GIMP|Gimp");
}

TEST(TimelineResources, TitlesAreComparedByTheirFirstSixtyUserPerceivedCharacters) {
    // 59 characters of two code points each: counting bytes or code points would cut far too early.
    std::string upTo59;
    for (int i = 0; i < 59; ++i)
        upTo59 += "e\u0301";
    const auto editor = [](std::int64_t id, const std::string& title) {
        return ActivityRecord(
            ActivityBuilder(id, kNine + id * 10, 5).app("Gedit", "org.gnome.gedit").title(title));
    };

    // Differing only in the 61st character: one resource.
    EXPECT_EQ(resourceKey(editor(1, upTo59 + "AB")), resourceKey(editor(2, upTo59 + "AC")));
    // Differing in the 60th: two.
    EXPECT_NE(resourceKey(editor(1, upTo59 + "A")), resourceKey(editor(2, upTo59 + "B")));
    // Any other application: different titles are different resources.
    EXPECT_EQ(computeBlocks({editor(1, "one"), editor(2, "two")}, 0, true).size(), 2u);
}

TEST(TimelineChapters, AwaySpansSplitOnlyFromTheirThresholdInEachRegime) {
    struct Case {
        bool grouped;
        std::int64_t awaySeconds;
        std::vector<std::size_t> sizes;
    };
    const Case cases[] = {
        {true, 599, {2}},         // dropped; the whole pause of 599 s is within 1200
        {true, 600, {1, 1, 1}},   // a chapter of its own
        {false, 299, {2}},        // dropped; pause 299 within 600
        {false, 300, {1, 1, 1}},  // the smaller threshold
    };
    for (const Case& c : cases) {
        const std::vector<ActivityRecord> day = {ActivityBuilder(1, kNine, 600),
                                                 ActivityBuilder::away(2, kNine + 600, c.awaySeconds),
                                                 ActivityBuilder(3, kNine + 600 + c.awaySeconds, 60)};
        const std::vector<TimelineChapter> chapters = computeChapters(day, 0, c.grouped);
        EXPECT_EQ(groupSizes(chapters), c.sizes) << c.grouped << " " << c.awaySeconds;
        ASSERT_EQ(chapters.size(), c.sizes.size());
        for (std::size_t i = 0; i < chapters.size(); ++i) {
            EXPECT_EQ(isIdleChapter(chapters[i]), chapters.size() == 3 && i == 1) << i;
        }
    }
    // An away span at the start of the day makes no empty chapter before it.
    const std::vector<TimelineChapter> chapters =
        computeChapters({ActivityBuilder::away(1, kNine, 600), ActivityBuilder(2, kNine + 600, 60)}, 0, true);
    ASSERT_EQ(groupSizes(chapters), (std::vector<std::size_t>{1, 1}));
    EXPECT_TRUE(isIdleChapter(chapters[0]));
}

TEST(TimelineChapters, PausesCloseAboveTheGapAndDroppedAwayTimeCountsTowardIt) {
    const auto day = [](double pause) {
        return std::vector<ActivityRecord>{ActivityBuilder(1, kNine, 60),
                                           ActivityBuilder(2, kNine + 60 + pause, 60)};
    };
    EXPECT_EQ(computeChapters(day(1200), 0, true).size(), 1u);
    EXPECT_EQ(computeChapters(day(1201), 0, true).size(), 2u);
    EXPECT_EQ(computeChapters(day(600), 0, false).size(), 1u);
    EXPECT_EQ(computeChapters(day(601), 0, false).size(), 2u);

    // A 599 s away span leaves no mark, but the whole pause around it counts: 599 + 602 > 1200.
    const std::vector<ActivityRecord> withAway = {ActivityBuilder(1, kNine, 60),
                                                  ActivityBuilder::away(2, kNine + 60, 599),
                                                  ActivityBuilder(3, kNine + 60 + 1201, 60)};
    EXPECT_EQ(groupSizes(computeChapters(withAway, 0, true)), (std::vector<std::size_t>{1, 1}));
}

TEST(TimelineChapters, DerivedValuesAndTheTieRule) {
    // Uncategorized work leads with 200 s against 150 s: no dominant category, "Mixed".
    const TimelineChapter mixed = makeChapter(
        {ActivityBuilder(1, kNine, 100).category(5), ActivityBuilder(2, kNine + 100, 100),
         ActivityBuilder(3, kNine + 200, 50).category(5), ActivityBuilder(4, kNine + 900.7, 100)});
    EXPECT_EQ(mixed.dominantCategoryID(), std::nullopt);
    EXPECT_EQ(mixed.categoryBreakdown(), (std::vector<CategoryShare>{{std::nullopt, 200}, {5, 150}}));
    EXPECT_EQ(mixed.wallSeconds(), 1000);  // 1000.7 truncated
    EXPECT_EQ(mixed.engagedSeconds(), 350);
    EXPECT_EQ(mixed.primaryActivity().id, 1);  // the earliest of the 100 s activities

    // Equal totals: the key that appears first leads, both for the dominant category and the order.
    const std::vector<ActivityRecord> tie = {ActivityBuilder(1, kNine, 30).category(7),
                                             ActivityBuilder(2, kNine + 30, 60).category(3),
                                             ActivityBuilder(3, kNine + 90, 30).category(7)};
    EXPECT_EQ(makeChapter(tie).dominantCategoryID(), 7);
    EXPECT_EQ(makeChapter(tie).categoryBreakdown(), (std::vector<CategoryShare>{{7, 60}, {3, 60}}));
    const std::vector<ActivityRecord> reversed = {tie[1], tie[0], tie[2]};
    EXPECT_EQ(makeChapter(reversed).dominantCategoryID(), 3);
}

TEST(TimelineLabels, ChapterLinesNameVisitsAndTheDominantCategory) {
    const std::vector<Category> categories = {
        {5, "Coding", "#34C759", "x", Productivity::productive, std::nullopt, true, 1}};
    const TimelineChapter merged = makeChapter({ActivityBuilder(1, kNine, 10).category(5).title("main.cpp"),
                                                ActivityBuilder(2, kNine + 400, 10).category(5),
                                                ActivityBuilder(3, kNine + 890, 10).category(5)});
    EXPECT_EQ(chapterTitle(merged), "main.cpp");
    EXPECT_EQ(chapterCanvasLine(merged), "3 visits \u00B7 30s");
    EXPECT_EQ(chapterCaption(merged, categories), "3 activities \u00B7 Coding");
    EXPECT_EQ(chapterCaption(merged, {}), "3 activities \u00B7 Mixed");  // an unknown category

    EXPECT_EQ(chapterCaption(makeChapter({ActivityBuilder(1, kNine, 187)}), categories), "Uncategorized");
}

}  // namespace
}  // namespace larkspan
