#include "Timeline/TimelineGrouping.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "Platform/AppRoles.h"
#include "Timeline/GraphemePrefix.h"

namespace larkspan {

namespace {

constexpr std::array<std::string_view, 13> kGroupedByAppPrefixes = {
    "com.cursor.",        "com.microsoft.VSCode",  "com.apple.dt.Xcode",    "com.jetbrains.",
    "io.zed.zed",         "com.sublimetext.",      "com.panic.Nova",        "dev.warp.Warp-1",
    "com.apple.Terminal", "com.googlecode.iterm2", "com.mitchellh.ghostty", "net.kovidgoyal.kitty",
    app_role::terminal,
};

// An empty record for the derived values of a block or chapter built by hand without activities.
const ActivityRecord& blankRecord() {
    static const ActivityRecord blank;
    return blank;
}

// The records that pass the duration filter, by address, so that grouping copies each record once.
std::vector<const ActivityRecord*> filtered(const std::vector<ActivityRecord>& activities,
                                            std::int64_t minDurationFilter) {
    std::vector<const ActivityRecord*> kept;
    kept.reserve(activities.size());
    for (const ActivityRecord& a : activities) {
        if (minDurationFilter == 0 || a.durationSeconds >= minDurationFilter)
            kept.push_back(&a);
    }
    return kept;
}

// The longest of `activities`, the earliest of equals.
const ActivityRecord& longest(const std::vector<ActivityRecord>& activities) {
    if (activities.empty())
        return blankRecord();
    const ActivityRecord* best = &activities.front();
    for (const ActivityRecord& a : activities) {
        if (a.durationSeconds > best->durationSeconds)
            best = &a;
    }
    return *best;
}

std::int64_t sumOfDurations(const std::vector<ActivityRecord>& activities) {
    std::int64_t sum = 0;
    for (const ActivityRecord& a : activities)
        sum += a.durationSeconds;
    return sum;
}

std::vector<ActivityRecord> copies(const std::vector<const ActivityRecord*>& records) {
    std::vector<ActivityRecord> list;
    list.reserve(records.size());
    for (const ActivityRecord* r : records)
        list.push_back(*r);
    return list;
}

}  // namespace

Date effectiveEnd(const ActivityRecord& activity) {
    return activity.endTime ? *activity.endTime : activity.startTime + activity.duration();
}

bool isGroupedByApp(const std::optional<std::string>& bundleID) {
    if (!bundleID)
        return false;
    return std::any_of(kGroupedByAppPrefixes.begin(), kGroupedByAppPrefixes.end(),
                       [&](std::string_view prefix) { return bundleID->starts_with(prefix); });
}

std::string resourceKey(const ActivityRecord& activity) {
    std::string key = activity.bundleID ? *activity.bundleID : activity.appName;
    if (activity.urlDomain && !activity.urlDomain->empty()) {
        key += '|';
        key += *activity.urlDomain;
    } else if (!isGroupedByApp(activity.bundleID)) {
        const std::string& title = activity.windowTitle ? *activity.windowTitle : activity.appName;
        key += '|';
        key += graphemePrefix(title, resourceTitlePrefixLength);
    }
    return key;
}

// ---- Blocks

std::int64_t TimelineBlock::id() const {
    return activities.empty() ? -1 : activities.front().id;
}

std::int64_t TimelineBlock::durationSeconds() const {
    return sumOfDurations(activities);
}

const ActivityRecord& TimelineBlock::primary() const {
    return longest(activities);
}

TimelineBlock makeBlock(std::vector<ActivityRecord> activities) {
    TimelineBlock block;
    block.activities = std::move(activities);
    if (!block.activities.empty()) {
        block.startTime = block.activities.front().startTime;
        block.endTime = effectiveEnd(block.activities.back());
        block.categoryID = block.primary().categoryID;
    }
    return block;
}

std::vector<TimelineBlock> computeBlocks(const std::vector<ActivityRecord>& activities,
                                         std::int64_t minDurationFilter, bool groupSameCategory) {
    const std::vector<const ActivityRecord*> kept = filtered(activities, minDurationFilter);
    std::vector<TimelineBlock> blocks;
    if (!groupSameCategory) {
        blocks.reserve(kept.size());
        for (const ActivityRecord* a : kept)
            blocks.push_back(makeBlock({*a}));
        return blocks;
    }

    std::vector<const ActivityRecord*> run;
    std::string runKey;
    for (const ActivityRecord* a : kept) {
        std::string key = resourceKey(*a);
        if (!run.empty()) {
            // From the visit appended last, not the latest end so far; a negative gap stitches.
            const double gap = a->startTime - effectiveEnd(*run.back());
            if (key == runKey && gap <= stitchGapSeconds) {
                run.push_back(a);
                continue;
            }
            blocks.push_back(makeBlock(copies(run)));
        }
        run.assign(1, a);
        runKey = std::move(key);
    }
    if (!run.empty())
        blocks.push_back(makeBlock(copies(run)));
    return blocks;
}

// ---- Chapters

std::int64_t TimelineChapter::id() const {
    return activities.empty() ? -1 : activities.front().id;
}

std::int64_t TimelineChapter::wallSeconds() const {
    return std::max<std::int64_t>(1, wholeSecondsBetween(startTime, endTime));
}

std::int64_t TimelineChapter::engagedSeconds() const {
    return sumOfDurations(activities);
}

const ActivityRecord& TimelineChapter::primaryActivity() const {
    return longest(activities);
}

std::vector<CategoryShare> TimelineChapter::categoryBreakdown() const {
    // Keys in order of first appearance; a chapter holds few categories, so a linear search wins.
    std::vector<CategoryShare> shares;
    for (const ActivityRecord& a : activities) {
        auto it = std::find_if(shares.begin(), shares.end(),
                               [&](const CategoryShare& s) { return s.cid == a.categoryID; });
        if (it == shares.end()) {
            shares.push_back({a.categoryID, a.durationSeconds});
        } else {
            it->secs += a.durationSeconds;
        }
    }
    std::stable_sort(shares.begin(), shares.end(),
                     [](const CategoryShare& x, const CategoryShare& y) { return x.secs > y.secs; });
    return shares;
}

std::optional<std::int64_t> TimelineChapter::dominantCategoryID() const {
    const std::vector<CategoryShare> shares = categoryBreakdown();
    return shares.empty() ? std::nullopt : shares.front().cid;
}

bool isIdleChapter(const TimelineChapter& chapter) {
    return chapter.primaryActivity().isIdle();
}

TimelineChapter makeChapter(std::vector<ActivityRecord> activities) {
    TimelineChapter chapter;
    chapter.activities = std::move(activities);
    if (!chapter.activities.empty()) {
        chapter.startTime = chapter.activities.front().startTime;
        chapter.endTime = effectiveEnd(chapter.activities.back());
    }
    return chapter;
}

std::vector<TimelineChapter> computeChapters(const std::vector<ActivityRecord>& activities,
                                             std::int64_t minDurationFilter, bool groupSameCategory) {
    const std::int64_t idleBreak = idleBreakSeconds(groupSameCategory);
    const double chapterGap = chapterGapSeconds(groupSameCategory);

    std::vector<TimelineChapter> chapters;
    std::vector<const ActivityRecord*> current;
    const auto close = [&] {
        if (!current.empty())
            chapters.push_back(makeChapter(copies(current)));
        current.clear();
    };

    for (const ActivityRecord* a : filtered(activities, minDurationFilter)) {
        if (a->isIdle()) {
            // A short away span joins nothing and closes nothing; its time counts toward the next gap.
            if (a->durationSeconds >= idleBreak) {
                close();
                chapters.push_back(makeChapter({*a}));
            }
            continue;
        }
        // The last end is that of the activity appended last; closing the list forgets it.
        if (!current.empty() && a->startTime - effectiveEnd(*current.back()) > chapterGap)
            close();
        current.push_back(a);
    }
    close();
    return chapters;
}

}  // namespace larkspan
