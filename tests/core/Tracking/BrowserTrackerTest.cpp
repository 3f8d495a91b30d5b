#include "Tracking/BrowserTracker.h"

#include <gtest/gtest.h>

#include "FakeScriptRunner.h"
#include "FakeWorkspace.h"
#include "ManualClock.h"

namespace larkspan {
namespace {

using test::FakeScriptRunner;
using test::FakeWorkspace;
using test::ManualClock;

struct BrowserTrackerTest : ::testing::Test {
    FakeScriptRunner runner;
    FakeWorkspace workspace;
    ManualClock clock;
    BrowserTracker tracker{runner, workspace, clock};
};

TEST_F(BrowserTrackerTest, ScriptTextsAreExactAndTheGenericOneIsNamedAfterTheRunningApplication) {
    EXPECT_EQ(tracker.tabScript("com.apple.Safari"), R"(tell application "Safari"
    try
        set u to URL of current tab of front window
        set t to name of current tab of front window
        return u & "|||" & t
    on error
        return "about:blank|||Safari"
    end try
end tell)");
    EXPECT_EQ(tracker.tabScript("org.mozilla.firefox"), R"(tell application "Firefox"
    try
        set t to name of front window
        return "firefox://active|||" & t
    on error
        return "firefox://active|||Firefox"
    end try
end tell)");
    EXPECT_EQ(tracker.tabScript("company.thebrowser.Browser"), R"(tell application "Arc"
    try
        tell front window
            set u to URL of active tab
            set t to title of active tab
            return u & "|||" & t
        end tell
    on error
        return "about:blank|||Arc"
    end try
end tell)");
    EXPECT_EQ(tracker.tabScript("com.kagi.kagimacOS"), R"(tell application "Orion"
    try
        set u to URL of current tab of front window
        set t to name of current tab of front window
        return u & "|||" & t
    on error
        return "about:blank|||Orion"
    end try
end tell)");

    const std::string brave = R"(tell application "Brave Browser"
    try
        set u to URL of active tab of first window
        set t to title of active tab of first window
        return u & "|||" & t
    on error
        return "about:blank|||Brave Browser"
    end try
end tell)";
    workspace.setRunning({{"org.gnome.Nautilus", "Files", 7}, {"com.brave.Browser", "Brave Browser", 8}});
    EXPECT_EQ(tracker.tabScript("com.brave.Browser"), brave);

    // Not running, or running without a name: the family's default name.
    std::string chrome = brave;
    for (auto at = chrome.find("Brave Browser"); at != std::string::npos; at = chrome.find("Brave Browser")) {
        chrome.replace(at, 13, "Google Chrome");
    }
    EXPECT_EQ(tracker.tabScript("com.vivaldi.Vivaldi"), chrome);
    workspace.setRunning({{"com.vivaldi.Vivaldi", std::nullopt, 9}});
    EXPECT_EQ(tracker.tabScript("com.vivaldi.Vivaldi"), chrome);
}

TEST_F(BrowserTrackerTest, TheTwelveBrowsersAreExactIdentifiers) {
    EXPECT_EQ(BrowserTracker::browserBundleIDs().size(), 12u);
    EXPECT_TRUE(BrowserTracker::isBrowser("com.google.Chrome.canary"));
    EXPECT_TRUE(BrowserTracker::isBrowser("com.operasoftware.Opera"));
    EXPECT_TRUE(BrowserTracker::isBrowser("com.kagi.kagimacOS"));
    EXPECT_FALSE(BrowserTracker::isBrowser("com.google.chrome"));
    EXPECT_FALSE(BrowserTracker::isBrowser("com.google.Chrome.dev"));
    EXPECT_FALSE(BrowserTracker::isBrowser(""));
}

TEST_F(BrowserTrackerTest, AnAnswerIsServedFromTheCacheForStrictlyLessThanThreeSeconds) {
    runner.answerAlways("https://example.com/|||Example");
    ASSERT_TRUE(tracker.getActiveTab("com.apple.Safari"));
    clock.advance(2.9);
    EXPECT_EQ(tracker.getActiveTab("com.apple.Safari")->domain, "example.com");
    EXPECT_EQ(runner.runCount(), 1);

    clock.advance(0.1);  // 3.0 s after the fetch
    ASSERT_TRUE(tracker.getActiveTab("com.apple.Safari"));
    EXPECT_EQ(runner.runCount(), 2);
    // Each browser has its own entry.
    ASSERT_TRUE(tracker.getActiveTab("com.google.Chrome"));
    EXPECT_EQ(runner.runCount(), 3);
}

TEST_F(BrowserTrackerTest, AStaleEntryIsNotServedAfterAFailedFetch) {
    runner.answerAlways("https://example.com/|||Example");
    ASSERT_TRUE(tracker.getActiveTab("com.apple.Safari"));
    runner.answerAlways(std::nullopt);
    clock.advance(1.0);
    EXPECT_TRUE(tracker.getActiveTab("com.apple.Safari"));  // still fresh
    clock.advance(2.5);
    EXPECT_FALSE(tracker.getActiveTab("com.apple.Safari"));
    EXPECT_FALSE(tracker.getActiveTab("com.apple.Safari"));
    EXPECT_EQ(runner.runCount(), 3);
}

TEST_F(BrowserTrackerTest, AnswersAreSplitAtTheSeparatorAndTrimmed) {
    const auto tabFor = [&](std::optional<std::string> answer) {
        runner.answerAlways(std::move(answer));
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
    // Empty parts are a tab with empty texts.
    EXPECT_EQ(tabFor("|||"), (TabInfo{"", "", ""}));
    // Firefox's pseudo address makes every page one domain.
    EXPECT_EQ(tabFor("firefox://active|||Mozilla Firefox"),
              (TabInfo{"firefox://active", "Mozilla Firefox", "active"}));
    // Titles of any size and encoding pass through unchanged.
    std::string odd = "\xF0\x9F\x8D\x85 \xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D \xC3\x28 ";
    odd += std::string(1, '\0') + std::string(100'000, 'x');
    EXPECT_EQ(tabFor("about:blank|||" + odd)->title, odd);
}

TEST_F(BrowserTrackerTest, ScriptsAreCompiledOncePerTextAndFailedCompilesAreRetried) {
    runner.answerAlways("about:blank|||New Tab");
    // Neither browser runs, so both use the same default text.
    ASSERT_TRUE(tracker.getActiveTab("com.google.Chrome"));
    ASSERT_TRUE(tracker.getActiveTab("com.microsoft.edgemac"));
    clock.advance(5);
    ASSERT_TRUE(tracker.getActiveTab("com.google.Chrome"));
    EXPECT_EQ(runner.compileCount(), 1);
    EXPECT_EQ(runner.runCount(), 3);

    runner.refuseCompiles(true);
    EXPECT_FALSE(tracker.getActiveTab("com.apple.Safari"));
    runner.refuseCompiles(false);
    EXPECT_TRUE(tracker.getActiveTab("com.apple.Safari"));
    EXPECT_EQ(runner.compileCount(), 3);
}

TEST(BrowserTrackerDomain, HostWithoutLeadingWwwElseTheTextUnchanged) {
    const std::pair<std::string, std::string> cases[] = {
        {"about:blank", "about:blank"},  // no host
        {"firefox://active", "active"},  // any scheme with an authority
        {"https://www.example.com/a", "example.com"},
        {" https://www.example.com/a ", " https://www.example.com/a "},  // untrimmed does not parse
        {"https://docs.www.example.com/", "docs.www.example.com"},       // only a leading "www." goes
        {"https://wwwexample.com/", "wwwexample.com"},
        {"https://WWW.Example.COM/", "WWW.Example.COM"},  // case is kept, so "WWW." is no prefix
        {"http://user:pw@www.host.net:8080/p?q#f", "host.net"},
        {"file:///etc/hosts", "file:///etc/hosts"},
        {"not a url", "not a url"},
        {"", ""},
        {std::string("https://a.com/\0x", 16), std::string("https://a.com/\0x", 16)},
    };
    for (const auto& [text, domain] : cases) {
        EXPECT_EQ(BrowserTracker::extractDomain(text), domain) << text;
    }
}

}  // namespace
}  // namespace larkspan
