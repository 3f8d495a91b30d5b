#include "Timeline/TimelineScreen.h"

#include <algorithm>
#include <cmath>
#include <ctime>
#include <iterator>

#include "Platform/LocalDay.h"
#include "Timeline/TimelineLabels.h"

namespace larkspan {

std::string formatRowDuration(std::int64_t seconds) {
    if (seconds < 60)
        return std::to_string(seconds) + "s";
    if (seconds < 3600)
        return std::to_string(seconds / 60) + "m";
    return std::to_string(seconds / 3600) + "h " + std::to_string(seconds % 3600 / 60) + "m";
}

std::string formatSheetDuration(std::int64_t seconds) {
    return seconds <= 0 ? "\u2014" : formatRowDuration(seconds);
}

std::string summaryText(const DaySummary& summary) {
    const auto percent =
        static_cast<int>(std::trunc(std::clamp(summary.productivityRatio(), 0.0, 1.0) * 100));
    return formatDuration(summary.totalSeconds) + " tracked \u00B7 " + std::to_string(percent) +
           "% productive";
}

std::optional<std::string> rowSubtitle(const ActivityRecord& primary, const Category* category) {
    if (auto subtitle = primary.displaySubtitle())
        return subtitle;
    if (!primary.isManual && category)
        return category->name;
    return std::nullopt;
}

bool showsPendingDot(const ActivityRecord& record) {
    return record.needsApproval && !record.isApproved;
}

bool showsShowAll(std::size_t blockCount, std::int64_t minDurationFilter) {
    return blockCount == 0 && minDurationFilter > 0;
}

bool canStepForward(Date selectedDate, Date now) {
    return startOfLocalDay(selectedDate) < startOfLocalDay(now);
}

Date stepDays(Date date, int days) {
    const std::optional<std::tm> fields = localFields(date);
    if (!fields)
        return date;
    std::tm moved = *fields;
    moved.tm_mday += days;
    moved.tm_isdst = -1;
    const std::time_t result = std::mktime(&moved);
    return result == -1 ? date : static_cast<Date>(result) + (date - std::floor(date));
}

void TimelineSelection::tapBlock(const TimelineBlock& tapped) {
    if (block && block->id() == tapped.id())
        block.reset();
    else
        block = tapped;
}

void TimelineSelection::tapChapter(const TimelineChapter& tapped) {
    if (chapter && chapter->id() == tapped.id())
        chapter.reset();
    else
        chapter = tapped;
}

void TimelineSelection::dateChanged() {
    block.reset();
    chapter.reset();
}

void TimelineSelection::rowDeleted(std::int64_t blockID) {
    if (block && block->id() == blockID)
        block.reset();
}

void TimelineSelection::editDone() {
    editing.reset();
    block.reset();
}

std::vector<DetailRow> blockDetailRows(const TimelineBlock& block, const Category* category,
                                       const TimeText& shortTime) {
    const ActivityRecord& primary = block.primary();
    std::vector<DetailRow> rows{{"Category", category ? category->name : "Uncategorized"},
                                {"App", primary.appName},
                                {"Start", shortTime(primary.startTime)}};
    if (primary.endTime)
        rows.push_back({"End", shortTime(*primary.endTime)});
    rows.push_back({"Duration", formatDuration(block.durationSeconds())});
    if (block.isMerged())
        rows.push_back({"Sessions", std::to_string(block.activities.size()) + " visits stitched"});
    return rows;
}

std::vector<DetailRow> chapterDetailRows(const TimelineChapter& chapter, const TimeText& shortTime) {
    return {{"Start", shortTime(chapter.startTime)},
            {"End", shortTime(chapter.endTime)},
            {"Span", formatDuration(chapter.wallSeconds())},
            {"Engaged", formatDuration(chapter.engagedSeconds())}};
}

int sharePercent(std::int64_t seconds, std::int64_t engagedSeconds) {
    if (engagedSeconds < 1)
        return 0;
    return static_cast<int>(
        std::trunc(static_cast<double>(seconds) / static_cast<double>(engagedSeconds) * 100));
}

std::vector<MixShare> categoryMix(const TimelineChapter& chapter, const std::vector<Category>& categories) {
    const std::vector<CategoryShare> breakdown = chapter.categoryBreakdown();
    if (breakdown.size() <= 1)
        return {};
    const std::int64_t engaged = chapter.engagedSeconds();
    std::vector<MixShare> mix;
    for (std::size_t i = 0; i < std::min<std::size_t>(breakdown.size(), 5); ++i) {
        const Category* category = categoryWithID(categories, breakdown[i].cid);
        mix.push_back({breakdown[i].cid, category ? category->name : "Other",
                       sharePercent(breakdown[i].secs, engaged)});
    }
    return mix;
}

std::vector<Category> panelGridCategories(const std::vector<Category>& categories) {
    return {categories.begin(),
            categories.begin() + static_cast<std::ptrdiff_t>(std::min(categories.size(), panelGridSize))};
}

void recategorize(Database& database, const std::vector<ActivityRecord>& activities,
                  std::int64_t categoryID) {
    for (const ActivityRecord& activity : activities)
        database.updateActivityCategory(activity.id, categoryID, true);
}

std::int64_t sheetDuration(Date start, Date end) {
    return std::max<std::int64_t>(0, wholeSecondsBetween(start, end));
}

std::string pickerHourLabel(int hour) {
    hour = ((hour % 24) + 24) % 24;
    if (hour == 0)
        return "12 AM";
    if (hour < 12)
        return std::to_string(hour) + " AM";
    if (hour == 12)
        return "12 PM";
    return std::to_string(hour - 12) + " PM";
}

int localHour(Date time) {
    const auto fields = localFields(time);
    return fields ? fields->tm_hour : 0;
}

int localMinute(Date time) {
    const auto fields = localFields(time);
    return fields ? fields->tm_min : 0;
}

int pickerMinuteStep(Date time) {
    return localMinute(time) / 5 * 5;
}

Date withHourMinute(Date time, int hour, int minute) {
    const std::optional<std::tm> fields = localFields(time);
    if (!fields || hour < 0 || hour > 23 || minute < 0 || minute > 59)
        return time;
    std::tm wanted = *fields;
    wanted.tm_hour = hour;
    wanted.tm_min = minute;
    wanted.tm_sec = 0;
    wanted.tm_isdst = -1;
    std::tm made = wanted;
    const std::time_t result = std::mktime(&made);
    // A time the clock skips (a spring-forward gap) comes back normalised to another hour.
    if (result == -1 || made.tm_hour != hour || made.tm_min != minute || made.tm_mday != fields->tm_mday)
        return time;
    return static_cast<Date>(result);
}

EditSheetValues editSheetStart(const ActivityRecord& activity) {
    return {activity.startTime,
            activity.endTime.value_or(activity.startTime + static_cast<double>(activity.durationSeconds)),
            activity.categoryID.value_or(category_id::other), activity.notes.value_or("")};
}

bool saveEditSheet(Database& database, std::int64_t activityID, const EditSheetValues& values) {
    database.updateActivityCategory(activityID, values.categoryID, true);
    database.updateActivityTimes(activityID, values.startTime, values.endTime);
    if (!values.notes.empty())
        database.updateActivityNotes(activityID, values.notes);
    const std::optional<ActivityRecord> stored = database.fetchActivity(activityID);
    return stored && stored->isApproved && stored->categoryID == values.categoryID &&
           stored->startTime == values.startTime && stored->endTime == values.endTime &&
           (values.notes.empty() || stored->notes == values.notes);
}

ManualSheetValues manualSheetStart(Date now) {
    ManualSheetValues values;
    values.endTime = now;
    values.startTime = presetStart(now, 60);
    return values;
}

Date presetStart(Date endTime, int minutes) {
    // Minutes are calendar minutes: with no leap seconds that is elapsed time.
    const Date start = endTime - static_cast<double>(minutes) * 60;
    return std::isfinite(start) ? start : endTime;
}

std::vector<Category> manualSheetCategories(const std::vector<Category>& categories) {
    std::vector<Category> offered;
    std::copy_if(categories.begin(), categories.end(), std::back_inserter(offered),
                 [](const Category& category) { return category.name != kAwayTitle; });
    return offered;
}

ActivityRecord manualEntry(const ManualSheetValues& values) {
    return ActivityRecord::manual(
        values.startTime, values.endTime, values.categoryID,
        values.title.empty() ? manualDefaultTitle : values.title,
        values.notes.empty() ? std::nullopt : std::optional<std::string>(values.notes));
}

}  // namespace larkspan
