#include "Classification/CategoryEngine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <string>

#include "ClassificationPrinters.h"

namespace larkspan {
namespace {

using std::nullopt;
using Text = std::optional<std::string>;

constexpr ClassificationResult kFallback{21, 0.3};

ClassificationResult learned(std::int64_t category) {
    return {category, 0.99};
}

TEST(ClassificationResult, NeedsApprovalStrictlyBelowThreshold) {
    EXPECT_FALSE((ClassificationResult{1, 0.65}).needsApproval());
    EXPECT_TRUE((ClassificationResult{1, std::nextafter(0.65, 0.0)}).needsApproval());
    EXPECT_FALSE((ClassificationResult{1, std::nextafter(0.65, 1.0)}).needsApproval());
    // Nothing known falls back to Other, which asks.
    EXPECT_TRUE(kFallback.needsApproval());
}

TEST(CategoryEngine, LearnedRulesOfPlainActivitiesInOrderDomainBundleName) {
    CategoryEngine engine;
    engine.learnedRules = {
        {"app_name", "Firefox", 12}, {"bundle_id", "org.mozilla.firefox", 11}, {"domain", "github.com", 19}};
    // A learned domain beats every table, and beats the bundle and name rules.
    EXPECT_EQ(engine.classify("Firefox", "org.mozilla.firefox", "PR", "https://github.com/x", "github.com"),
              learned(19));
    // Then the bundle id, for a page with no domain rule of its own.
    EXPECT_EQ(engine.classify("Firefox", "org.mozilla.firefox", "Docs", nullopt, "docs.rs"), learned(11));
    // Then the name; an empty bundle id skips its rule.
    EXPECT_EQ(engine.classify("Firefox", "", "Docs", nullopt, "docs.rs"), learned(12));
    EXPECT_EQ(engine.classify("Firefox", nullopt, nullopt, nullopt, nullopt), learned(12));
    // Keys and types match exactly and case-sensitively.
    EXPECT_EQ(engine.classify("firefox", "org.mozilla.Firefox", "Docs", nullopt, "GitHub.com"),
              (ClassificationResult{1, 0.92}));
    engine.learnedRules = {{"Domain", "github.com", 19}, {"domain", "github.com ", 19}};
    EXPECT_EQ(engine.classify("Firefox", nullopt, "PR", nullopt, "github.com"),
              (ClassificationResult{1, 0.92}));

    // Empty keys never match their learned step; the name has no such test.
    engine.learnedRules = {
        {"domain", "", 19}, {"bundle_id", "", 18}, {"url", "", 17}, {"title", "", 16}, {"app_name", "", 7}};
    EXPECT_EQ(engine.classify("Zzz", "", "", "", ""), kFallback);
    EXPECT_EQ(engine.classify("Zzz", "", "", "", "youtube.com"), (ClassificationResult{16, 0.55}));
    EXPECT_EQ(engine.classify("", nullopt, nullopt, nullopt, nullopt), learned(7));
}

TEST(CategoryEngine, MixedPagesUseOnlyUrlAndTitleRules) {
    CategoryEngine engine;
    engine.learnedRules = {
        {"domain", "youtube.com", 19},
        {"app_name", "Firefox", 12},
        {"bundle_id", "org.mozilla.firefox", 11},
        {"url", "https://youtube.com/watch?v=1", 4},
        {"title", "Lo-fi beats \U0001F3B5", 12},
        {"url", "https://reddit.com/r/cpp", 11},
    };
    const Text firefox = "org.mozilla.firefox";
    // Domain, bundle and name rules have no effect on a mixed page.
    EXPECT_EQ(engine.classify("Firefox", firefox, "Cats", "https://youtube.com/watch?v=2", "youtube.com"),
              (ClassificationResult{16, 0.45}));
    // The address first, then the title.
    EXPECT_EQ(engine.classify("Firefox", firefox, "Lo-fi beats \U0001F3B5", "https://youtube.com/watch?v=1",
                              "youtube.com"),
              learned(4));
    EXPECT_EQ(engine.classify("Firefox", firefox, "Lo-fi beats \U0001F3B5", "https://youtube.com/watch?v=9",
                              "youtube.com"),
              learned(12));
    // With neither address nor title rule the page goes to the tables, never to the plain rules.
    EXPECT_EQ(engine.classify("Firefox", firefox, nullopt, nullopt, "youtube.com"),
              (ClassificationResult{16, 0.55}));
    // The mixed test lower-cases the domain; learned keys still match exactly.
    EXPECT_EQ(engine.classify("Firefox", firefox, "Cats", "https://reddit.com/r/cpp", "Reddit.COM"),
              learned(11));
    EXPECT_EQ(engine.classify("Firefox", firefox, "Cats", "https://youtube.com/watch?v=2", "YouTube.com"),
              (ClassificationResult{16, 0.45}));
    // A subdomain of a mixed service is a plain page: its domain rules apply, its address rules do not.
    engine.learnedRules.push_back({"domain", "m.youtube.com", 8});
    EXPECT_EQ(engine.classify("Firefox", nullopt, "Cats", "https://youtube.com/watch?v=1", "m.youtube.com"),
              learned(8));
    EXPECT_EQ(engine.classify("Firefox", nullopt, "Cats", "https://youtube.com/watch?v=1", "www.youtube.com"),
              learned(12));
}

TEST(CategoryEngine, TablesInOrderDomainBundleNameTitle) {
    const CategoryEngine engine;
    struct Case {
        const char* app;
        Text bundle, title, domain;
        ClassificationResult expected;
    };
    const Case cases[] = {
        // The domain table before the bundle table.
        {"Google Chrome", "com.google.Chrome", "PR", "github.com", {1, 0.92}},
        // A domain that no table knows goes on to the application.
        {"Code", "com.microsoft.VSCode", "main.rs", "example.org", {1, 0.99}},
        {"Safari", "com.apple.Safari", "Example", "example.org", {21, 0.40}},
        // The bundle table before the name table, the name table before the title.
        {"Xcode", "com.apple.Terminal", nullopt, nullopt, {2, 0.99}},
        {"Slack", "org.example.chat", "main.rs", nullopt, {6, 0.85}},
        // An application of no group with a source file open.
        {"gedit", "org.gnome.gedit", "main.rs - ~/src", nullopt, {1, 0.80}},
        {"gedit", "org.gnome.gedit", "", nullopt, kFallback},
        // A YouTube page never skips to the application: its answer asks the user.
        {"Code", "com.microsoft.VSCode", "YouTube", "youtube.com", {16, 0.55}},
        {"Firefox", "org.mozilla.firefox", "Rust tutorial for beginners", "www.youtube.com", {4, 0.58}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.app) + " | " + c.domain.value_or("<absent>"));
        EXPECT_EQ(engine.classify(c.app, c.bundle, c.title, nullopt, c.domain), c.expected);
    }
}

TEST(CategoryEngine, AnyTextIsSafe) {
    CategoryEngine engine;
    const std::string huge(100000, 'x');
    engine.learnedRules = {{"title", huge, 4}, {"app_name", "\u05D3\u05E4\u05D3\u05E4\u05DF", 10}};
    EXPECT_EQ(engine.classify("Firefox", nullopt, huge, huge, "youtube.com"), learned(4));
    EXPECT_EQ(engine.classify("\u05D3\u05E4\u05D3\u05E4\u05DF", nullopt, nullopt, nullopt, nullopt),
              learned(10));
    EXPECT_EQ(engine.classify("\xFF\xFE", "\xC3\x28", "\xE2\x82", "\xF0\x9F", "\xED\xA0\x80"), kFallback);
    EXPECT_EQ(engine.classify(std::string("Sla\0ck", 6), std::string("com.apple.mail\0", 15), nullopt,
                              nullopt, std::string("x.com\0", 6)),
              (ClassificationResult{5, 0.99}));
}

}  // namespace
}  // namespace larkspan
