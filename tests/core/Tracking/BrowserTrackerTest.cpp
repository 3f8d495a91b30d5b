#include "Tracking/BrowserTracker.h"

#include <gtest/gtest.h>

#include "Platform/TabScripts.h"
#include "TrackerRig.h"

namespace larkspan {
namespace {

struct BrowserTrackerTest : ::testing::Test, test::TrackerRig {
    BrowserTracker tracker{scripts, workspace, clock};
};

// Each browser gets its family's script; a Chromium-family one names the running application, else
// the family's default name.
TEST_F(BrowserTrackerTest, EachBrowserGetsItsFamilysScriptNamedAfterTheRunningApplication) {
    using Kind = TabScript::Kind;
    workspace.setRunning({{"org.gnome.Nautilus", "Files", 7}, {"com.brave.Browser", "Brave Browser", 8}});
    const std::pair<const char*, TabScript> cases[] = {
        {"com.apple.Safari", {Kind::safari, "Safari"}},
        {"org.mozilla.firefox", {Kind::firefox, "Firefox"}},
        {"com.kagi.kagimacOS", {Kind::orion, "Orion"}},
        {"com.brave.Browser", {Kind::chromiumFamily, "Brave Browser"}},
        {"com.vivaldi.Vivaldi", {Kind::chromiumFamily, "Google Chrome"}},
    };
    for (const auto& [bundle, expected] : cases)
        EXPECT_EQ(recogniseTabScript(tracker.tabScript(bundle)), expected) << bundle;
    workspace.setRunning({{"com.vivaldi.Vivaldi", std::nullopt, 9}});
    EXPECT_EQ(tracker.tabScript("com.vivaldi.Vivaldi"), chromiumFamilyTabScript("Google Chrome"));
}

TEST_F(BrowserTrackerTest, AnAnswerIsServedFromTheCacheForLessThanThreeSecondsButNeverAfterAFailure) {
    scripts.answerAlways("https://example.com/|||Example");
    ASSERT_TRUE(tracker.getActiveTab("com.apple.Safari"));
    clock.advance(2.9);
    EXPECT_EQ(tracker.getActiveTab("com.apple.Safari")->domain, "example.com");
    EXPECT_EQ(scripts.runCount(), 1);

    clock.advance(0.1);  // 3.0 s after the fetch
    ASSERT_TRUE(tracker.getActiveTab("com.apple.Safari"));
    EXPECT_EQ(scripts.runCount(), 2);
    // Each browser has its own entry.
    ASSERT_TRUE(tracker.getActiveTab("com.google.Chrome"));
    EXPECT_EQ(scripts.runCount(), 3);

    // A failed fetch leaves no stale entry behind.
    scripts.answerAlways(std::nullopt);
    clock.advance(3.5);
    EXPECT_FALSE(tracker.getActiveTab("com.apple.Safari"));
    EXPECT_FALSE(tracker.getActiveTab("com.apple.Safari"));
    EXPECT_EQ(scripts.runCount(), 5);
}

TEST_F(BrowserTrackerTest, AnswersAreSplitAtTheSeparatorAndTrimmed) {
    const auto tabFor = [&](std::optional<std::string> answer) {
        scripts.answerAlways(std::move(answer));
        clock.advance(10);
        return tracker.getActiveTab("com.google.Chrome");
    };
    // No separator, or no answer at all: no tab.
    EXPECT_FALSE(tabFor("https://example.com/ Example"));
    EXPECT_FALSE(tabFor(std::nullopt));
    // Spaces and tabs around both parts go; the domain is taken from the trimmed address.
    EXPECT_EQ(tabFor(" \thttps://www.example.com/a \t||| Example page\t"),
              (TabInfo{"https://www.example.com/a", "Example page", "example.com"}));
    // A third part, even a title holding the separator, is dropped.
    EXPECT_EQ(tabFor("https://a.org/|||Left|||Right"), (TabInfo{"https://a.org/", "Left", "a.org"}));
    // Titles of any size and encoding pass through unchanged.
    std::string odd = "\xF0\x9F\x8D\x85 \xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D \xC3\x28 ";
    odd += std::string(1, '\0') + std::string(100'000, 'x');
    EXPECT_EQ(tabFor("about:blank|||" + odd)->title, odd);
}

// One failed compile must not leave the browser without tab data until a restart.
TEST_F(BrowserTrackerTest, AFailedCompileIsRetried) {
    scripts.answerAlways("about:blank|||New Tab");
    scripts.refuseCompiles(true);
    EXPECT_FALSE(tracker.getActiveTab("com.apple.Safari"));
    scripts.refuseCompiles(false);
    EXPECT_TRUE(tracker.getActiveTab("com.apple.Safari"));
}

TEST(BrowserTrackerDomain, HostWithoutLeadingWwwElseTheTextUnchanged) {
    const std::pair<std::string, std::string> cases[] = {
        {"about:blank", "about:blank"},  // no host
        {"https://www.example.com/a", "example.com"},
        {"https://docs.www.example.com/", "docs.www.example.com"},  // only a leading "www." goes
        {"https://WWW.Example.COM/", "WWW.Example.COM"},            // case is kept, so "WWW." is no prefix
        {"http://user:pw@www.host.net:8080/p?q#f", "host.net"},
        {std::string("https://a.com/\0x", 16), std::string("https://a.com/\0x", 16)},
    };
    for (const auto& [text, domain] : cases)
        EXPECT_EQ(BrowserTracker::extractDomain(text), domain) << text;
}

}  // namespace
}  // namespace larkspan
