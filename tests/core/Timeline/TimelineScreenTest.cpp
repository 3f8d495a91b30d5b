#include <gtest/gtest.h>

#include "ActivityBuilder.h"
#include "LocalInstant.h"
#include "ScopedTimeZone.h"
#include "TempDir.h"
#include "Timeline/TimelineScreen.h"

namespace larkspan {
namespace {

using namespace test;

std::string clockText(Date instant) {
    char text[8];
    std::snprintf(text, sizeof text, "%02d:%02d", localHour(instant), localMinute(instant));
    return text;
}

TEST(TimelineScreenTest, DurationsMarksAndSubtitlesOfRowsAndSheets) {
    struct Case {
        std::int64_t seconds;
        const char* row;
        const char* sheet;
    };
    for (const Case& c : {Case{0, "0s", "\u2014"}, Case{-5, "-5s", "\u2014"}, Case{59, "59s", "59s"},
                          Case{60, "1m", "1m"}, Case{3599, "59m", "59m"}, Case{3661, "1h 1m", "1h 1m"}}) {
        EXPECT_EQ(formatRowDuration(c.seconds), c.row) << c.seconds;
        EXPECT_EQ(formatSheetDuration(c.seconds), c.sheet) << c.seconds;
    }
    DaySummary day{0, 3000, 1999, {}};
    EXPECT_EQ(summaryText(day), "50m 0s tracked \u00B7 66% productive");

    const Category coding = Category::seeded()[0];
    ActivityRecord tracked = ActivityBuilder(1, 0, 10).app("Code").title("main.cpp");
    ActivityRecord manual = ActivityRecord::manual(0, 60, coding.id, "Reading", std::nullopt);
    EXPECT_EQ(rowSubtitle(tracked, &coding), tracked.displaySubtitle().value_or(coding.name));
    EXPECT_EQ(rowSubtitle(manual, &coding), std::nullopt);
    EXPECT_TRUE(showsPendingDot(ActivityBuilder(2, 0, 10).pending(0.3)));
}

TEST(TimelineScreenTest, DaysStepAndPickersWriteByTheCalendar) {
    test::ScopedTimeZone zone{"Europe/Berlin"};
    const Date now = localInstant(2026, 3, 29, 10, 0);  // the day of the spring clock change
    EXPECT_FALSE(canStepForward(localInstant(2026, 3, 29, 0, 0), now));
    EXPECT_TRUE(canStepForward(stepDays(now, -1), now));
    EXPECT_EQ(stepDays(now, -1), localInstant(2026, 3, 28, 10, 0));
    EXPECT_EQ(stepDays(localInstant(2026, 3, 28, 10, 0), 1), now);

    // The time picker reads and writes on the same date.
    const Date start = localInstant(2026, 3, 10, 10, 37, 20);
    EXPECT_EQ(pickerMinuteStep(start), 35);
    EXPECT_EQ(withHourMinute(start, 10, 35), localInstant(2026, 3, 10, 10, 35));
    // An end past midnight keeps its date.
    EXPECT_EQ(withHourMinute(localInstant(2026, 3, 11, 0, 20), 1, 5), localInstant(2026, 3, 11, 1, 5));
    // 02:30 does not exist on the day the clocks go forward: the time stays.
    const Date springDay = localInstant(2026, 3, 29, 1, 0);
    EXPECT_EQ(withHourMinute(springDay, 2, 30), springDay);
}

TEST(TimelineScreenTest, EachEventClearsItsSelection) {
    const TimelineBlock first = makeBlock({ActivityBuilder(1, 0, 10)});
    const TimelineBlock second = makeBlock({ActivityBuilder(2, 20, 10)});
    const TimelineChapter chapter = makeChapter({ActivityBuilder(1, 0, 10)});
    TimelineSelection selection;
    selection.tapBlock(first);
    selection.tapChapter(chapter);
    selection.tapBlock(first);
    EXPECT_FALSE(selection.block);
    selection.tapBlock(second);
    selection.editing = second.primary();
    selection.editDone();
    EXPECT_FALSE(selection.block || selection.editing);
    EXPECT_TRUE(selection.chapter);  // a chapter panel outlives an edit
    selection.tapBlock(first);
    selection.dateChanged();
    EXPECT_FALSE(selection.block || selection.chapter);
}

TEST(TimelineScreenTest, PanelRowsFollowTheSelection) {
    test::ScopedTimeZone zone{"UTC"};
    const std::vector<Category> categories = Category::seeded();
    // A merged block whose longest visit is the last and still open.
    const TimelineBlock block =
        makeBlock({ActivityBuilder(1, 3600, 30).app("mpv"), ActivityBuilder(2, 3700, 90).app("mpv").open()});
    const auto rows = blockDetailRows(block, nullptr, clockText);
    const std::vector<DetailRow> expected{{"Category", "Uncategorized"},
                                          {"App", "mpv"},
                                          {"Start", "01:01"},
                                          {"Duration", "2m 0s"},
                                          {"Sessions", "2 visits stitched"}};
    EXPECT_EQ(rows, expected);

    const TimelineChapter mixed =
        makeChapter({ActivityBuilder(1, 0, 60).category(1), ActivityBuilder(2, 60, 30),
                     ActivityBuilder(3, 90, 10).category(1)});
    const std::vector<MixShare> mix{{1, "Coding", 70}, {std::nullopt, "Other", 30}};
    EXPECT_EQ(categoryMix(mixed, categories), mix);
    EXPECT_TRUE(categoryMix(makeChapter({ActivityBuilder(1, 0, 60).category(1)}), categories).empty());
    EXPECT_EQ(sharePercent(5, 0), 0);
    EXPECT_EQ(chapterDetailRows(makeChapter({ActivityBuilder(1, 0, 60).open()}), clockText)[1].value,
              "00:01");
}

TEST(TimelineScreenTest, EditSheetStartsFromTheRecordAndWritesItsColumns) {
    test::TempDir dir;
    Database db(dir / "tracker.db");
    ActivityRecord open = ActivityBuilder(-1, 1000, 0).app("kitty").open();
    EditSheetValues values = editSheetStart(open);
    EXPECT_EQ(values.endTime, 1000);
    EXPECT_EQ(sheetDuration(values.startTime, values.endTime), 0);
    EXPECT_EQ(values.categoryID, category_id::other);

    ActivityRecord pending = ActivityBuilder(-1, 1000, 300).pending(0.3);
    pending.notes = "first";
    const std::int64_t id = db.insertActivity(pending);
    values = editSheetStart(pending);
    values.notes.clear();
    values.endTime = 1000 + 299.7;
    // A read-only store keeps the row as it was, and says so.
    db.exec("PRAGMA query_only = 1");
    EXPECT_FALSE(saveEditSheet(db, id, values));
    EXPECT_EQ(db.fetchActivity(id)->durationSeconds, 300);
    db.exec("PRAGMA query_only = 0");
    EXPECT_TRUE(saveEditSheet(db, id, values));
    const ActivityRecord stored = *db.fetchActivity(id);
    EXPECT_TRUE(stored.isApproved && !stored.needsApproval);
    EXPECT_EQ(stored.categoryID, category_id::other);
    EXPECT_EQ(stored.durationSeconds, 299);
    EXPECT_EQ(stored.notes, "first");
}

TEST(TimelineScreenTest, ManualSheetValuesAndTheRecordStored) {
    const ManualSheetValues fresh = manualSheetStart(10'000);
    EXPECT_EQ(formatSheetDuration(sheetDuration(fresh.startTime, fresh.endTime)), "1h 0m");
    EXPECT_EQ(presetStart(7'000, 30), 5'200);  // from the end, not from now
    const ActivityRecord stored = manualEntry(fresh);
    EXPECT_EQ(stored.appName, "Manual Activity");
    EXPECT_EQ(stored.categoryID, category_id::learning);
    ManualSheetValues blanks = fresh;
    blanks.title = "  ";
    EXPECT_EQ(manualEntry(blanks).appName, "  ");

    std::vector<Category> catalogue = Category::seeded();
    std::rotate(catalogue.begin(), catalogue.begin() + 14, catalogue.end());  // "Away / Break" first
    const auto offered = manualSheetCategories(catalogue);
    EXPECT_EQ(offered.size(), catalogue.size() - 1);
    EXPECT_EQ(offered.front().name, catalogue[1].name);
}

}  // namespace
}  // namespace larkspan
