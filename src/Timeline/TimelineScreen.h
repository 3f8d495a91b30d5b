// The rules of the day screen that need no toolkit: its texts (summary line, row subtitle, the short
// duration forms), which selection each event clears, what the detail panels list, the time picker's
// reading and writing, the start values and writes of the edit and manual-entry sheets.
//
// Times of day are read in the user's time zone (TZ honoured); a text in the locale's time style is the
// caller's, handed in as `TimeText`.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Classification/Category.h"
#include "Data/Database.h"
#include "Timeline/TimelineGrouping.h"

namespace larkspan {

using TimeText = std::function<std::string(Date)>;

struct DurationOption {
    const char* label;
    std::int64_t seconds;
};
inline constexpr std::array<DurationOption, 5> durationOptions{
    {{"All", 0}, {">15s", 15}, {">30s", 30}, {">1m", 60}, {">5m", 300}}};

struct StartPreset {
    const char* label;  // with a minus sign, not a hyphen
    int minutes;
};
inline constexpr std::array<StartPreset, 4> startPresets{
    {{"\u22122h", 120}, {"\u22121h", 60}, {"\u221230m", 30}, {"\u221215m", 15}}};

inline constexpr const char* manualDefaultTitle = "Manual Activity";
// How many categories a panel's grid offers.
inline constexpr std::size_t panelGridSize = 12;

// "45s", "12m" (no seconds), "2h 5m": the list row's form.
std::string formatRowDuration(std::int64_t seconds);
// The sheets' form: "—" for nothing, else as the row's.
std::string formatSheetDuration(std::int64_t seconds);

// "1h 5m 0s tracked · 42% productive", for the whole stored day whatever the filter hides.
std::string summaryText(const DaySummary& summary);

// The row's second line after its times: the record's subtitle, else its category's name unless it
// was entered by hand.
std::optional<std::string> rowSubtitle(const ActivityRecord& primary, const Category* category);
// The orange dot: waiting for an answer not given yet.
bool showsPendingDot(const ActivityRecord& record);
// "Show all (remove filter)" under an empty list.
bool showsShowAll(std::size_t blockCount, std::int64_t minDurationFilter);
// The next-day button: off while the selected date lies in today.
bool canStepForward(Date selectedDate, Date now);
// The same time of day `days` calendar days away (a day of a clock change is not 86400 seconds).
Date stepDays(Date date, int days);

// What is selected and open. Blocks and chapters are copies taken at the tap, so a panel keeps its
// values across loads until an event clears it.
struct TimelineSelection {
    std::optional<TimelineBlock> block;      // list mode's panel
    std::optional<TimelineChapter> chapter;  // canvas mode's panel
    std::optional<ActivityRecord> editing;   // the edit sheet is open on this record
    bool showManualEntry = false;

    // A tap selects, or deselects the one already selected (same id).
    void tapBlock(const TimelineBlock& tapped);
    void tapChapter(const TimelineChapter& tapped);
    // Another day: both panels close.
    void dateChanged();
    // A row's delete: its panel closes only when it was that row's.
    void rowDeleted(std::int64_t blockID);
    // The edit sheet finished: the block panel closes, a chapter panel stays on its old values.
    void editDone();
};

// --- Detail panels ------------------------------------------------------------------------------

struct DetailRow {
    std::string label;
    std::string value;
    bool operator==(const DetailRow&) const = default;
};

// Category, App, Start and End of the longest visit (End only when it has one), the block's Duration,
// and Sessions for a merged block.
std::vector<DetailRow> blockDetailRows(const TimelineBlock& block, const Category* category,
                                       const TimeText& shortTime);
// Start, End (effective), Span and Engaged.
std::vector<DetailRow> chapterDetailRows(const TimelineChapter& chapter, const TimeText& shortTime);

struct MixShare {
    std::optional<std::int64_t> cid;
    std::string name;  // "Other" for no or an unknown category
    int percent = 0;
    bool operator==(const MixShare&) const = default;
};
// The first five shares of a chapter of more than one category; empty otherwise.
std::vector<MixShare> categoryMix(const TimelineChapter& chapter, const std::vector<Category>& categories);
// Whole percent of `seconds` in `engagedSeconds`; 0 when nothing was engaged.
int sharePercent(std::int64_t seconds, std::int64_t engagedSeconds);

// The panels' grid: the first twelve categories in catalogue order.
std::vector<Category> panelGridCategories(const std::vector<Category>& categories);
// The grid's tap: every activity of the selection gets the category, approved, one store call each.
void recategorize(Database& database, const std::vector<ActivityRecord>& activities, std::int64_t categoryID);

// --- Sheets -------------------------------------------------------------------------------------

// Whole seconds from start to end, truncated, at least 0.
std::int64_t sheetDuration(Date start, Date end);

// "12 AM", "1 AM" ... "12 PM", "1 PM" ... "11 PM".
std::string pickerHourLabel(int hour);
// The local minute rounded down to a step of five: 10:37 reads 35.
int pickerMinuteStep(Date time);
// `time` on its own local date with the hour and minute replaced and the seconds dropped; `time`
// itself when no such local time exists.
Date withHourMinute(Date time, int hour, int minute);
// The local hour and minute of `time` (0 when the zone cannot say).
int localHour(Date time);
int localMinute(Date time);

struct EditSheetValues {
    Date startTime = 0;
    Date endTime = 0;
    std::int64_t categoryID = category_id::other;
    std::string notes;
};
// The record's times (an open one ends at start plus duration), its category or "Other", its notes.
EditSheetValues editSheetStart(const ActivityRecord& activity);
// Approves with the chosen category, rewrites the times (and so the duration) and, unless the field is
// empty, the notes. The store swallows a failed write, so the row is read back: false when it does not
// hold what was saved (a read-only store), and the sheet then stays open.
bool saveEditSheet(Database& database, std::int64_t activityID, const EditSheetValues& values);

struct ManualSheetValues {
    Date startTime = 0;
    Date endTime = 0;
    std::int64_t categoryID = category_id::learning;
    std::string title;
    std::string notes;
};
// The hour up to `now`, in "Learning".
ManualSheetValues manualSheetStart(Date now);
// The start `minutes` before the current end; the end stays.
Date presetStart(Date endTime, int minutes);
// Every category but "Away / Break": a manual entry is never an away span.
std::vector<Category> manualSheetCategories(const std::vector<Category>& categories);
// The record to store: an empty title is "Manual Activity", empty notes are none. Nothing is trimmed.
ActivityRecord manualEntry(const ManualSheetValues& values);

}  // namespace larkspan
