// Turns the flat list of one day's activities into the two units a person reads: blocks (runs of
// visits to one resource with at most five minutes between them, the rows of the list) and chapters
// (stretches of work that end only at a real break, the boxes of the canvas).
//
// Everything here is pure: records in, values out, no clock, no store. Inputs are the day's records
// in ascending start order, as the store delivers them; records with equal starts keep the order
// given. Blocks and chapters hold their own copies of the records, and their derived values are
// computed when read, never stored, so a copy taken for a selection keeps showing what it held.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Platform/Clock.h"
#include "Tracking/ActivityRecord.h"

namespace larkspan {

// Longest gap over which two visits of one resource stay one block.
inline constexpr double stitchGapSeconds = 300.0;
// How many user-perceived characters of a window title identify a resource.
inline constexpr std::size_t resourceTitlePrefixLength = 60;

// An away span at least this long is a chapter of its own.
constexpr std::int64_t idleBreakSeconds(bool groupSameCategory) {
    return groupSameCategory ? 600 : 300;
}
// A pause between two activities longer than this closes the chapter.
constexpr double chapterGapSeconds(bool groupSameCategory) {
    return groupSameCategory ? 1200.0 : 600.0;
}

// One category's share of a chapter; `cid` is absent for the activities that have no category.
struct CategoryShare {
    std::optional<std::int64_t> cid;
    std::int64_t secs = 0;
    bool operator==(const CategoryShare&) const = default;
};

struct TimelineBlock {
    std::vector<ActivityRecord> activities;  // the visits in day order; never empty when made by makeBlock
    Date startTime = 0;                      // start of the first visit
    Date endTime = 0;                        // effective end of the last visit
    std::optional<std::int64_t> categoryID;  // category of the longest visit

    std::int64_t id() const;  // id of the first visit; -1 for an empty block
    bool isMerged() const { return activities.size() > 1; }
    std::int64_t durationSeconds() const;   // sum of the visits; the time between them does not count
    const ActivityRecord& primary() const;  // the longest visit, the earliest of equals

    bool operator==(const TimelineBlock&) const = default;
};

struct TimelineChapter {
    std::vector<ActivityRecord> activities;  // day order; never empty when made by makeChapter
    Date startTime = 0;                      // start of the first activity
    Date endTime = 0;                        // effective end of the last activity

    std::int64_t id() const;              // id of the first activity; -1 for an empty chapter
    std::int64_t wallSeconds() const;     // whole seconds from start to end, truncated, at least 1
    std::int64_t engagedSeconds() const;  // sum of the activities' durations, gaps left out
    bool isMerged() const { return activities.size() > 1; }
    const ActivityRecord& primaryActivity() const;  // the longest activity, the earliest of equals

    // Seconds per category, the absence of a category being a key of its own, largest first.
    // Ties: equal sums keep the order in which their keys first appear in the chapter, so the key
    // of the earlier activity leads. The rule is stable under re-computation and needs no ordering of
    // category ids.
    std::vector<CategoryShare> categoryBreakdown() const;
    // The leading key of categoryBreakdown (same tie rule); absent when that key is the absent one,
    // even when other activities share a category.
    std::optional<std::int64_t> dominantCategoryID() const;

    bool operator==(const TimelineChapter&) const = default;
};

// The end of an activity: its end time, or for one still open its start plus its duration.
Date effectiveEnd(const ActivityRecord& activity);

// Whether a whole application is one resource whichever window is in front (editors, IDEs,
// terminals): a case-sensitive prefix test against a fixed list. False for an absent identifier.
bool isGroupedByApp(const std::optional<std::string>& bundleID);

// The text that names the resource an activity visits: application and site for a web page, the
// application alone for an editor or terminal, else application and the first 60 characters of the
// window title (of the application name when the title is absent).
std::string resourceKey(const ActivityRecord& activity);

// Precondition for both: `activities` is not empty.
TimelineBlock makeBlock(std::vector<ActivityRecord> activities);
TimelineChapter makeChapter(std::vector<ActivityRecord> activities);

// Both computations first drop the activities shorter than `minDurationFilter` seconds (0 keeps
// all); what the filter removes counts as a gap.

// Blocks in day order. With `groupSameCategory` each run of one resource whose visits are at most
// stitchGapSeconds apart (measured from the end of the visit appended last; overlaps stitch) is one
// block; without it every activity is a block of its own.
std::vector<TimelineBlock> computeBlocks(const std::vector<ActivityRecord>& activities,
                                         std::int64_t minDurationFilter, bool groupSameCategory);

// Chapters in day order. A long enough away span is a chapter of its own and closes the one before;
// a shorter one is dropped and its time counts toward the next pause; a pause longer than
// chapterGapSeconds closes the chapter. Resources and categories play no part.
std::vector<TimelineChapter> computeChapters(const std::vector<ActivityRecord>& activities,
                                             std::int64_t minDurationFilter, bool groupSameCategory);

// Whether a chapter is an away span: its longest activity is one.
bool isIdleChapter(const TimelineChapter& chapter);

}  // namespace larkspan
