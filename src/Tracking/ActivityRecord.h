// The values the tracker knows of the user's day: one look at the desktop (RawActivity), a stored
// span of time with a category (ActivityRecord) and the part of it that totals read (ActivityTotal),
// and a browser's active tab (TabInfo).
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "Classification/Category.h"
#include "Platform/Clock.h"

namespace larkspan {

// One sample. Two samples are the same activity when application name, bundle id, domain and idle
// flag agree (an absent optional equals only an absent one); title, address and idle seconds take no
// part, so a new page on the same host is no new activity, and idle samples are all equal.
struct RawActivity {
    std::string appName;
    std::optional<std::string> bundleID;
    std::optional<std::string> windowTitle;
    std::optional<std::string> url;
    std::optional<std::string> urlDomain;
    bool isIdle = false;
    double idleSeconds = 0;  // seconds since the last input; 0 on active samples

    bool operator==(const RawActivity& other) const {
        return appName == other.appName && bundleID == other.bundleID && urlDomain == other.urlDomain &&
               isIdle == other.isIdle;
    }
};

struct TabInfo {
    std::string url;
    std::string title;
    std::string domain;
    bool operator==(const TabInfo&) const = default;
};

inline constexpr const char* kAwayAppName = "Away";
inline constexpr const char* kAwayTitle = "Away / Break";

struct ActivityRecord {
    std::int64_t id = -1;  // row id; -1 until inserted
    std::string appName;   // "Away" for an idle span; the title for a manual entry
    std::optional<std::string> bundleID;
    std::optional<std::string> windowTitle;
    std::optional<std::string> url;
    std::optional<std::string> urlDomain;
    std::optional<std::int64_t> categoryID;
    double confidence = 0;  // 0 to 1
    bool needsApproval = false;
    bool isApproved = false;
    Date startTime = 0;
    std::optional<Date> endTime;       // absent while open, until the first heartbeat
    std::int64_t durationSeconds = 0;  // whole seconds, truncated
    bool isManual = false;
    std::optional<std::string> notes;

    static ActivityRecord idle(Date startTime, std::int64_t categoryID = category_id::awayBreak);
    static ActivityRecord manual(Date start, Date end, std::optional<std::int64_t> categoryID,
                                 std::string title, std::optional<std::string> notes);

    double duration() const { return static_cast<double>(durationSeconds); }
    // The only mark of an away span in a stored row is its name.
    bool isIdle() const { return appName == kAwayAppName; }

    // A page of a title-priority service reads title over domain; any other page domain over title.
    std::string displayTitle() const;
    std::optional<std::string> displaySubtitle() const;
    std::optional<std::string> displayNotes() const;

    bool operator==(const ActivityRecord&) const = default;
};

// A stored activity as totals over weeks and months read it: a fifth of a record's size, so a heavy
// user's quarter (some 130,000 rows) is read without titles, addresses and notes.
struct ActivityTotal {
    std::string appName;
    std::optional<std::int64_t> categoryID;
    Date startTime = 0;
    std::optional<Date> endTime;  // absent while open
    std::int64_t durationSeconds = 0;

    bool operator==(const ActivityTotal&) const = default;
};

// Cuts one trailing browser or site suffix (" - YouTube", " – Firefox", …) and trims spaces and tabs.
std::string cleanBrowserTitle(std::string_view title);

// Whether `domain` is one of the services whose page titles say more than their host, or a
// subdomain of one. Exact and case-sensitive.
bool isTitlePriorityDomain(std::string_view domain);

}  // namespace larkspan
