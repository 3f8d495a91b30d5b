#include "Tracking/ActivityRecord.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <string>
#include <tuple>

#include "ActivityBuilder.h"

namespace larkspan {
namespace {

using std::nullopt;

ActivityRecord page(std::optional<std::string> domain, std::optional<std::string> title) {
    return test::ActivityBuilder(0, 0, 0).app("Firefox").domain(std::move(domain)).title(std::move(title));
}

TEST(RawActivity, IdentityIsNameBundleDomainAndIdleFlagOnly) {
    const RawActivity chrome{"Chrome", "com.google.Chrome", "Issues", {}, "github.com"};
    const std::tuple<const char*, RawActivity, bool> cases[] = {
        {"another page of the host", {"Chrome", "com.google.Chrome", "Pulls", {}, "github.com"}, true},
        {"another host", {"Chrome", "com.google.Chrome", "Issues", {}, "gitlab.com"}, false},
        {"another bundle", {"Chrome", "org.chromium", "Issues", {}, "github.com"}, false},
        {"idle", {"Chrome", "com.google.Chrome", "Issues", {}, "github.com", true}, false},
        {"empty domain is not absent", {"Chrome", "com.google.Chrome", {}, {}, ""}, false},
        {"empty bundle is not absent", {"Chrome", "", {}, {}, "github.com"}, false},
    };
    for (const auto& [name, other, same] : cases)
        EXPECT_EQ(chrome == other, same) << name;
}

TEST(ActivityRecord, IdleAndManualRecordsAreApprovedAndNeverNegative) {
    const ActivityRecord away = ActivityRecord::idle(1000.5);
    EXPECT_TRUE(away.isIdle() && away.isApproved);
    EXPECT_EQ(away.categoryID, category_id::awayBreak);
    EXPECT_EQ(ActivityRecord::idle(0, 4).categoryID, 4);

    const auto manual = ActivityRecord::manual(100.0, 190.9, 3, "Letter to the bank", "drafted");
    EXPECT_EQ(manual.windowTitle, "Letter to the bank");
    EXPECT_EQ(manual.durationSeconds, 90);  // truncated
    EXPECT_TRUE(manual.isManual && manual.isApproved && !manual.needsApproval);
    // An end before the start, or a clock gone wrong, never gives a negative span.
    EXPECT_EQ(ActivityRecord::manual(500, 100, 1, "x", nullopt).durationSeconds, 0);
    EXPECT_EQ(ActivityRecord::manual(0, NAN, 1, "x", nullopt).durationSeconds, 0);
}

TEST(ActivityRecord, DisplayTitleAndSubtitle) {
    struct Case {
        std::optional<std::string> domain, title;
        std::string displayTitle;
        std::optional<std::string> subtitle;
    };
    const Case cases[] = {
        // A title-priority service reads title over domain, with the site's suffix cut.
        {"www.youtube.com", "Rust in 100 Seconds - YouTube", "Rust in 100 Seconds", "youtube.com"},
        // Subdomains pass through the "." rule; a name that merely ends the same does not.
        {"gist.github.com", "notes.md \u00B7 GitHub", "notes.md", "gist.github.com"},
        {"notgithub.com", "Home", "notgithub.com", "Home"},
        {"GitHub.com", "Issues", "GitHub.com", "Issues"},  // case-sensitive
        // Any other page reads domain over title; only a leading "www." goes.
        {"www.example.org", "Example Domain", "example.org", "Example Domain"},
        {"example.org", "", "example.org", nullopt},
        // Without a domain the window title stands unchanged, suffix and all.
        {nullopt, "Plan - Google Chrome", "Plan - Google Chrome", nullopt},
        {"", "", "Firefox", nullopt},
    };
    for (const Case& c : cases) {
        const auto record = page(c.domain, c.title);
        SCOPED_TRACE(c.domain.value_or("<absent>") + " | " + c.title.value_or("<absent>"));
        EXPECT_EQ(record.displayTitle(), c.displayTitle);
        EXPECT_EQ(record.displaySubtitle(), c.subtitle);
    }
    // A huge title and domain are handled whole.
    const std::string huge(100000, 'x');
    const auto record = page("www." + huge + ".youtube.com", huge + " - YouTube");
    EXPECT_EQ(record.displayTitle(), huge);
    EXPECT_EQ(record.displaySubtitle(), huge + ".youtube.com");
}

TEST(CleanBrowserTitle, CutsOneKnownSuffixThenTrimsSpacesAndTabs) {
    const std::pair<std::string, std::string> cases[] = {
        {"Video - YouTube", "Video"},
        {"Page \u2013 Firefox", "Page"},
        // Only the suffix at the end goes, and only one.
        {"Plan - Notion - Google Chrome", "Plan - Notion"},
        // The dash, dot and case must be exact.
        {"Page - Firefox", "Page - Firefox"},
        // Spaces and tabs at both ends go, with or without a suffix; other blanks stay.
        {" \tVideo \t - YouTube", "Video"},
        {"\u00A0Untitled\n", "\u00A0Untitled\n"},
        // Any text is safe: invalid UTF-8, NUL.
        {"\xFF\xFE - Arc", "\xFF\xFE"},
        {std::string("a\0b - Arc", 9), std::string("a\0b", 3)},
    };
    for (const auto& [title, expected] : cases)
        EXPECT_EQ(cleanBrowserTitle(title), expected) << title;
}

}  // namespace
}  // namespace larkspan
