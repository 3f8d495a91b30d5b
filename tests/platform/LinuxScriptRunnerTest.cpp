#include "Platform/Linux/LinuxScriptRunner.h"

#include <gtest/gtest.h>

#include <map>
#include <tuple>

#include "FakeBrowserBridge.h"
#include "Platform/TabScripts.h"

namespace larkspan {
namespace {

const std::string kFirefoxScript(kFirefoxTabScript);
const std::string kSafariScript(kSafariTabScript);

class FakeWindows final : public ApplicationWindows {
public:
    std::optional<FrontWindow> frontWindow() override { return front; }
    std::optional<std::string> frontWindowTitle(const std::string& bundleID) override {
        asked.push_back(bundleID);
        auto it = titles.find(bundleID);
        return it == titles.end() ? std::nullopt : std::optional(it->second);
    }
    std::optional<FrontWindow> front;
    std::map<std::string, std::string> titles;
    std::vector<std::string> asked;
};

// The scripts the tracker sends are recognised (checked with the tracker); any other text is not ours.
TEST(LinuxScriptRunner, RecognisesNothingButTheBrowserScripts) {
    // A trailing line feed, a tab for spaces, two different names, no name, text around.
    for (const auto& text :
         {kFirefoxScript + "\n", kSafariScript.substr(0, kSafariScript.size() - 1),
          std::string(kFirefoxScript).replace(kFirefoxScript.find("    "), 4, "\t"),
          chromiumFamilyTabScript("Edge").replace(chromiumFamilyTabScript("Edge").rfind("Edge"), 4, "Chrome"),
          std::string("tell application \""), std::string(), "-- x\n" + kSafariScript}) {
        EXPECT_FALSE(recogniseTabScript(text)) << text;
    }
}

TEST(LinuxScriptRunner, FirefoxIsAnsweredFromItsFrontWindowOthersFail) {
    auto windows = std::make_shared<FakeWindows>();
    LinuxScriptRunner runner(windows);
    EXPECT_EQ(runner.compile("display dialog \"hi\""), nullptr);

    const auto firefox = runner.compile(kFirefoxScript);
    ASSERT_NE(firefox, nullptr);
    // No Firefox window: the script's error branch.
    EXPECT_EQ(runner.execute(*firefox), "firefox://active|||Firefox");
    windows->titles["org.mozilla.firefox"] = "Rust |||  docs \xF0\x9F\xA6\x80 \xE2\x80\x94 Mozilla Firefox";
    EXPECT_EQ(runner.execute(*firefox),
              "firefox://active|||Rust |||  docs \xF0\x9F\xA6\x80 \xE2\x80\x94 Mozilla Firefox");
    EXPECT_EQ(windows->asked, (std::vector<std::string>(2, "org.mozilla.firefox")));

    // The bridge for the other browsers is not there: no answer, and no desktop query either.
    for (const auto& text : {kSafariScript, chromiumFamilyTabScript("Google Chrome")}) {
        const auto script = runner.compile(text);
        ASSERT_NE(script, nullptr);
        EXPECT_FALSE(runner.execute(*script));
    }
    EXPECT_EQ(windows->asked.size(), 2u);
}

TEST(LinuxScriptRunner, TabTitlesAgreeUpToTheBrowsersNameBehindADash) {
    const std::vector<std::tuple<const char*, const char*, bool>> cases = {
        {"Issues", "Issues - Chromium", true},
        {"Issues", "Issues \u2014 Mozilla Firefox", true},
        {"Issues", "Issues \u2013 Profile 2 - Google Chrome", true},
        {" Issues ", "Issues", true},
        {"Issues \xF0\x9F\x9A\x80 \"q\"", "Issues \xF0\x9F\x9A\x80 \"q\" - Brave", true},
        {"Issues", "Issues 2 - Chromium", false},
        {"Issues - Chromium", "Issues", false},
        {"", " - Chromium", false},
        {"Issues", "", false},
    };
    for (const auto& [tab, window, agrees] : cases)
        EXPECT_EQ(tabTitleAgrees(tab, window), agrees) << tab << " / " << window;
}

TEST(LinuxScriptRunner, TheBridgeAnswersOnlyForTheFrontBrowsersAgreeingTab) {
    auto windows = std::make_shared<FakeWindows>();
    auto bridge = std::make_shared<test::FakeBrowserBridge>();
    LinuxScriptRunner runner(windows, bridge);
    const auto chromium = runner.compile(chromiumFamilyTabScript("Chromium"));
    const auto firefox = runner.compile(kFirefoxScript);
    ASSERT_TRUE(chromium && firefox);
    windows->titles["org.mozilla.firefox"] = "Docs \u2014 Mozilla Firefox";

    const BrowserTabReport github{700, "chromium", false, "https://github.com/x", "x: Issues", 10};
    struct Case {
        const char* what;
        FrontWindow front;
        BrowserTabReport report;
        std::optional<std::string> chromiumAnswer;
        std::string firefoxAnswer;
    };
    const std::string match = "https://github.com/x|||x: Issues";
    const std::string docs = "firefox://active|||Docs \u2014 Mozilla Firefox";
    const BrowserTabReport privateTab{700, "chromium", true, "", "", 10};
    // clang-format off
    const std::vector<Case> cases = {
        {"fresh and matching",                      {700, "x: Issues - Chromium"}, github,     match,        match},
        {"stale: the window shows another tab",     {700, "Inbox - Chromium"},     github,     std::nullopt, docs},
        {"another browser's report",                {701, "x: Issues - Chromium"}, github,     std::nullopt, docs},
        {"a private tab",                           {700, "x: Issues - Chromium"}, privateTab, std::nullopt, docs},
        {"no owner named: the title picks the report", {0, "x: Issues - Chromium"}, github,    match,        match},
        {"no owner named and no report agrees",     {0, "Inbox - Chromium"},       github,     std::nullopt, docs},
    };
    // clang-format on
    for (const auto& c : cases) {
        windows->front = c.front;
        bridge->setReports({c.report});
        EXPECT_EQ(runner.execute(*chromium), c.chromiumAnswer) << c.what;
        EXPECT_EQ(runner.execute(*firefox), c.firefoxAnswer) << c.what;
    }
}

}  // namespace
}  // namespace larkspan
