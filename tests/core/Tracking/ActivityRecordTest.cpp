#include "Tracking/ActivityRecord.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <string>

namespace larkspan {
namespace {

using std::nullopt;

RawActivity sample(std::string app, std::optional<std::string> bundle, std::optional<std::string> domain,
                   std::optional<std::string> title = nullopt, std::optional<std::string> url = nullopt) {
    return RawActivity{std::move(app), std::move(bundle), std::move(title), std::move(url),
                       std::move(domain)};
}

ActivityRecord page(std::optional<std::string> domain, std::optional<std::string> title,
                    std::string app = "Firefox") {
    ActivityRecord record;
    record.appName = std::move(app);
    record.urlDomain = std::move(domain);
    record.windowTitle = std::move(title);
    return record;
}

TEST(RawActivity, IdentityIsNameBundleDomainAndIdleFlagOnly) {
    const auto chrome = sample("Chrome", "com.google.Chrome", "github.com", "Issues", "https://github.com/a");
    // Another page on the same host in the same browser is the same activity.
    EXPECT_EQ(chrome, sample("Chrome", "com.google.Chrome", "github.com", "Pulls", "https://github.com/b"));
    // Another window of the same application too.
    EXPECT_EQ(sample("Editor", "org.gnu.emacs", nullopt, "a.txt"),
              sample("Editor", "org.gnu.emacs", nullopt, "b.c"));
    // A new host is a change.
    EXPECT_NE(chrome, sample("Chrome", "com.google.Chrome", "gitlab.com", "Issues", "https://github.com/a"));
    EXPECT_NE(chrome,
              sample("Chromium", "com.google.Chrome", "github.com", "Issues", "https://github.com/a"));
    EXPECT_NE(chrome, sample("Chrome", "org.chromium", "github.com", "Issues", "https://github.com/a"));
    auto idleChrome = chrome;
    idleChrome.isIdle = true;
    EXPECT_NE(chrome, idleChrome);
}

TEST(RawActivity, IdleSamplesAreEqualHoweverLongTheAbsence) {
    auto a = sample("Away", nullopt, nullopt);
    auto b = a;
    a.isIdle = b.isIdle = true;
    a.idleSeconds = 121;
    b.idleSeconds = 4000;
    EXPECT_EQ(a, b);
}

TEST(RawActivity, AbsentIsNotEmpty) {
    EXPECT_NE(sample("Safari", "com.apple.Safari", nullopt), sample("Safari", "com.apple.Safari", ""));
    EXPECT_NE(sample("Safari", nullopt, nullopt), sample("Safari", "", nullopt));
}

TEST(ActivityRecord, IdleRecordIsAnApprovedAwaySpan) {
    const auto record = ActivityRecord::idle(1000.5);
    EXPECT_EQ(record.id, -1);
    EXPECT_EQ(record.appName, "Away");
    EXPECT_EQ(record.windowTitle, "Away / Break");
    EXPECT_EQ(record.categoryID, 15);
    EXPECT_EQ(record.confidence, 1.0);
    EXPECT_FALSE(record.needsApproval);
    EXPECT_TRUE(record.isApproved);
    EXPECT_EQ(record.startTime, 1000.5);
    EXPECT_EQ(record.endTime, nullopt);
    EXPECT_EQ(record.bundleID, nullopt);
    EXPECT_EQ(record.url, nullopt);
    EXPECT_EQ(record.urlDomain, nullopt);
    EXPECT_EQ(record.notes, nullopt);
    EXPECT_FALSE(record.isManual);
    EXPECT_TRUE(record.isIdle());
    EXPECT_EQ(ActivityRecord::idle(0, 4).categoryID, 4);
}

TEST(ActivityRecord, ManualRecordTakesTitleTimesAndTruncatedDuration) {
    const auto record = ActivityRecord::manual(100.0, 190.9, 3, "Letter to the bank", "drafted");
    EXPECT_EQ(record.id, -1);
    EXPECT_EQ(record.appName, "Letter to the bank");
    EXPECT_EQ(record.windowTitle, "Letter to the bank");
    EXPECT_EQ(record.categoryID, 3);
    EXPECT_EQ(record.confidence, 1.0);
    EXPECT_FALSE(record.needsApproval);
    EXPECT_TRUE(record.isApproved);
    EXPECT_EQ(record.startTime, 100.0);
    EXPECT_EQ(record.endTime, 190.9);
    EXPECT_EQ(record.durationSeconds, 90);
    EXPECT_EQ(record.duration(), 90.0);
    EXPECT_TRUE(record.isManual);
    EXPECT_EQ(record.notes, "drafted");
    EXPECT_EQ(record.bundleID, nullopt);
    EXPECT_EQ(record.urlDomain, nullopt);

    // An end before the start, or a clock gone wrong, never gives a negative span.
    EXPECT_EQ(ActivityRecord::manual(500, 100, 1, "x", nullopt).durationSeconds, 0);
    EXPECT_EQ(ActivityRecord::manual(0, NAN, 1, "x", nullopt).durationSeconds, 0);
}

TEST(ActivityRecord, IdleMeansTheNameAwayWhateverTheCategory) {
    EXPECT_TRUE(page(nullopt, nullopt, "Away").isIdle());
    EXPECT_FALSE(page(nullopt, nullopt, "away").isIdle());
    EXPECT_FALSE(page(nullopt, nullopt, std::string("Away\0", 5)).isIdle());
    EXPECT_FALSE(page(nullopt, "Away / Break", "Firefox").isIdle());
}

TEST(ActivityRecord, DisplayTitleAndSubtitle) {
    struct Case {
        std::optional<std::string> domain, title;
        std::string displayTitle;
        std::optional<std::string> subtitle;
    };
    const Case cases[] = {
        // A priority service reads title over domain, with the site's suffix cut.
        {"www.youtube.com", "Rust in 100 Seconds - YouTube", "Rust in 100 Seconds", "youtube.com"},
        {"youtu.be", "Clip - YouTube", "Clip", "youtu.be"},
        {"www.youtube.com", nullopt, "youtube.com", "youtube.com"},
        {"youtube.com", "", "youtube.com", "youtube.com"},
        // Subdomains pass through the "." rule; a name that merely ends the same does not.
        {"gist.github.com", "notes.md \u00B7 GitHub", "notes.md", "gist.github.com"},
        {"notgithub.com", "Home", "notgithub.com", "Home"},
        {"acme.jira.atlassian.com", "PRJ-1 Login fails", "PRJ-1 Login fails", "acme.jira.atlassian.com"},
        // The test is case-sensitive.
        {"GitHub.com", "Issues", "GitHub.com", "Issues"},
        // Any other page reads domain over title; only a leading "www." goes.
        {"www.example.org", "Example Domain", "example.org", "Example Domain"},
        {"shop.www.example.org", "Cart", "shop.www.example.org", "Cart"},
        {"example.org", nullopt, "example.org", nullopt},
        {"example.org", "", "example.org", nullopt},
        // Without a domain the window title stands unchanged, suffix and all.
        {nullopt, "Plan - Google Chrome", "Plan - Google Chrome", nullopt},
        {"", "Plan - Google Chrome", "Plan - Google Chrome", nullopt},
        {"", "", "Firefox", nullopt},
        {nullopt, nullopt, "Firefox", nullopt},
    };
    for (const Case& c : cases) {
        const auto record = page(c.domain, c.title);
        SCOPED_TRACE(c.domain.value_or("<absent>") + " | " + c.title.value_or("<absent>"));
        EXPECT_EQ(record.displayTitle(), c.displayTitle);
        EXPECT_EQ(record.displaySubtitle(), c.subtitle);
    }
}

TEST(ActivityRecord, TitlePriorityDomainsAreTheTwelveServices) {
    for (const char* domain :
         {"youtube.com", "m.youtube.com", "youtu.be", "github.com", "stackoverflow.com", "medium.com",
          "docs.google.com", "notion.so", "figma.com", "jira.atlassian.com", "linear.app", "arxiv.org"}) {
        EXPECT_TRUE(isTitlePriorityDomain(domain)) << domain;
        EXPECT_TRUE(isTitlePriorityDomain(std::string("eu.") + domain)) << domain;
    }
    for (const char* domain : {"google.com", "sheets.google.com", "atlassian.com", "xarxiv.org",
                               "arxiv.org.evil", "", ".", "YOUTUBE.COM"}) {
        EXPECT_FALSE(isTitlePriorityDomain(domain)) << domain;
    }
}

TEST(ActivityRecord, DisplayNotesOnlyWhenThereIsText) {
    auto record = page(nullopt, nullopt);
    EXPECT_EQ(record.displayNotes(), nullopt);
    record.notes = "";
    EXPECT_EQ(record.displayNotes(), nullopt);
    record.notes = " ";
    EXPECT_EQ(record.displayNotes(), " ");
}

TEST(CleanBrowserTitle, CutsOneKnownSuffixThenTrimsSpacesAndTabs) {
    const std::pair<std::string, std::string> cases[] = {
        {"Video - YouTube", "Video"},
        {"repo \u00B7 GitHub", "repo"},
        {"Doc - Google Docs", "Doc"},
        {"Budget - Google Sheets", "Budget"},
        {"Question - Stack Overflow", "Question"},
        {"Essay \u2014 Medium", "Essay"},
        {"Mockup - Figma", "Mockup"},
        {"Plan - Notion", "Plan"},
        {"Page - Google Chrome", "Page"},
        {"Page \u2013 Firefox", "Page"},
        {"Page - Safari", "Page"},
        {"Page - Arc", "Page"},
        // Only the suffix at the end goes, and only one.
        {"Plan - Notion - Google Chrome", "Plan - Notion"},
        {"Page - Arc - Arc", "Page - Arc"},
        {"Page - Arc - YouTube", "Page - Arc"},
        {"Plan - Notion extra", "Plan - Notion extra"},
        // The dash, dot and case must be exact.
        {"Page - Firefox", "Page - Firefox"},
        {"Essay - Medium", "Essay - Medium"},
        {"repo - GitHub", "repo - GitHub"},
        {"Video - youtube", "Video - youtube"},
        // Spaces and tabs at both ends go, with or without a suffix; other blanks stay.
        {" \tVideo \t - YouTube", "Video"},
        {"\t Untitled \t", "Untitled"},
        {"\u00A0Untitled\n", "\u00A0Untitled\n"},
        {" - YouTube", ""},
        {"", ""},
        // Any text is safe: emoji, right-to-left, invalid UTF-8, NUL.
        {"\U0001F3B5 Song - YouTube", "\U0001F3B5 Song"},
        {"\u05E9\u05DC\u05D5\u05DD - Safari", "\u05E9\u05DC\u05D5\u05DD"},
        {"\xFF\xFE - Arc", "\xFF\xFE"},
        {std::string("a\0b - Arc", 9), std::string("a\0b", 3)},
    };
    for (const auto& [title, expected] : cases) {
        EXPECT_EQ(cleanBrowserTitle(title), expected) << title;
    }
}

TEST(ActivityRecord, HugeTitleAndDomainAreHandledWhole) {
    const std::string huge(100000, 'x');
    const auto record = page("www." + huge + ".youtube.com", huge + " - YouTube");
    EXPECT_EQ(record.displayTitle(), huge);
    EXPECT_EQ(record.displaySubtitle(), huge + ".youtube.com");
}

}  // namespace
}  // namespace larkspan
