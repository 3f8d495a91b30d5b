// Identity and display texts of activity records. The title-priority set and the browser suffixes
// are a dozen entries each, scanned in order; display texts are built on demand, never cached.
#include "Tracking/ActivityRecord.h"

#include <algorithm>
#include <array>

#include "Platform/OptionalText.h"
#include "Platform/TrimBlanks.h"

namespace larkspan {

namespace {

constexpr std::array<std::string_view, 12> kTitlePriorityDomains = {
    "youtube.com",     "m.youtube.com", "youtu.be",  "github.com",         "stackoverflow.com", "medium.com",
    "docs.google.com", "notion.so",     "figma.com", "jira.atlassian.com", "linear.app",        "arxiv.org",
};

// Checked in this order; the first that matches is the only one cut.
constexpr std::array<std::string_view, 12> kBrowserTitleSuffixes = {
    " - YouTube",        " \u00B7 GitHub",  " - Google Docs", " - Google Sheets",
    " - Stack Overflow", " \u2014 Medium",  " - Figma",       " - Notion",
    " - Google Chrome",  " \u2013 Firefox", " - Safari",      " - Arc",
};

std::string_view withoutWww(std::string_view domain) {
    return domain.starts_with("www.") ? domain.substr(4) : domain;
}

}  // namespace

bool isTitlePriorityDomain(std::string_view domain) {
    for (std::string_view entry : kTitlePriorityDomains) {
        if (domain == entry || (domain.size() > entry.size() && domain.ends_with(entry) &&
                                domain[domain.size() - entry.size() - 1] == '.')) {
            return true;
        }
    }
    return false;
}

std::string cleanBrowserTitle(std::string_view title) {
    for (std::string_view suffix : kBrowserTitleSuffixes) {
        if (title.ends_with(suffix)) {
            title.remove_suffix(suffix.size());
            break;
        }
    }
    return std::string(trimBlanks(title));
}

ActivityRecord ActivityRecord::idle(Date startTime, std::int64_t categoryID) {
    ActivityRecord record;
    record.appName = kAwayAppName;
    record.windowTitle = kAwayTitle;
    record.categoryID = categoryID;
    record.confidence = 1.0;
    record.isApproved = true;
    record.startTime = startTime;
    return record;
}

ActivityRecord ActivityRecord::manual(Date start, Date end, std::optional<std::int64_t> categoryID,
                                      std::string title, std::optional<std::string> notes) {
    ActivityRecord record;
    record.appName = title;
    record.windowTitle = std::move(title);
    record.categoryID = categoryID;
    record.confidence = 1.0;
    record.isApproved = true;
    record.startTime = start;
    record.endTime = end;
    record.durationSeconds = std::max<std::int64_t>(0, wholeSecondsBetween(start, end));
    record.isManual = true;
    record.notes = std::move(notes);
    return record;
}

std::string ActivityRecord::displayTitle() const {
    if (hasText(urlDomain)) {
        const std::string_view domain = withoutWww(*urlDomain);
        if (isTitlePriorityDomain(domain) && hasText(windowTitle)) {
            return cleanBrowserTitle(*windowTitle);
        }
        return std::string(domain);
    }
    if (hasText(windowTitle)) {
        return *windowTitle;
    }
    return appName;
}

std::optional<std::string> ActivityRecord::displaySubtitle() const {
    if (!hasText(urlDomain)) {
        return std::nullopt;
    }
    const std::string_view domain = withoutWww(*urlDomain);
    if (isTitlePriorityDomain(domain)) {
        return std::string(domain);
    }
    if (hasText(windowTitle)) {
        return windowTitle;
    }
    return std::nullopt;
}

std::optional<std::string> ActivityRecord::displayNotes() const {
    return hasText(notes) ? notes : std::nullopt;
}

}  // namespace larkspan
