#include "Classification/DomainRules.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "ClassificationPrinters.h"
#include "TextCase.h"

namespace larkspan {
namespace {

using std::nullopt;
using test::upper;
using Result = std::optional<ClassificationResult>;

TEST(DomainRules, EveryPatternReachesItsOwnGroupInAnyCaseAndOnSubdomains) {
    // No pattern is shadowed by an earlier group: moving a group ahead of another breaks this.
    ASSERT_EQ(domainRuleGroups().size(), 14u);
    for (const DomainRuleGroup& group : domainRuleGroups()) {
        const ClassificationResult expected{group.categoryID, group.confidence};
        for (std::string_view pattern : group.patterns) {
            const std::string p(pattern);
            EXPECT_EQ(classifyByDomain(p, nullopt), expected) << p;
            EXPECT_EQ(classifyByDomain(upper(p), nullopt), expected) << p;
            EXPECT_EQ(classifyByDomain("eu." + p, "Title"), expected) << p;
        }
    }
}

TEST(DomainRules, MatchingIsByEndingAndEarlierGroupsWin) {
    const std::pair<std::string, Result> cases[] = {
        // Netflix, HBO Max and Max end in "x.com" but stand in an earlier group than X.
        {"netflix.com", ClassificationResult{16, 0.97}},
        {"max.com", ClassificationResult{16, 0.97}},
        {"x.com", ClassificationResult{17, 0.88}},
        {"dropbox.com", ClassificationResult{17, 0.88}},  // ends in "x.com": no boundary at a dot
        {"linkedin.com/learning", ClassificationResult{4, 0.95}},
        {"apple.com/apple-tv-plus", ClassificationResult{16, 0.97}},
        {"corp.webmail.", ClassificationResult{5, 0.95}},
        // Only the ending counts: a service in the middle of the text, or a longer ending, is no match.
        {"github.com.example.org", nullopt},
        {"linkedin.com/learning/course", nullopt},
        {"apple.com", nullopt},
        {"", nullopt},
    };
    for (const auto& [domain, expected] : cases) {
        EXPECT_EQ(classifyByDomain(domain, nullopt), expected) << domain;
    }
}

TEST(DomainRules, YouTubeIsJudgedByTheVideoTitle) {
    const ClassificationResult learning{4, 0.58}, titled{16, 0.45}, untitled{16, 0.55};
    struct Case {
        const char* domain;
        std::optional<std::string> title;
        ClassificationResult expected;
    };
    const Case cases[] = {
        {"youtube.com", "YouTube", untitled},
        {"YouTube.com", nullopt, untitled},
        {"m.youtube.com", "", untitled},
        {"youtube.com", "youtube", titled},  // only the exact title is YouTube's own page
        {"youtube.com", "Rust tutorial for beginners", learning},
        {"youtube.com", "Funny coding interview", titled},  // P 1, N 2
        {"youtube.com", "Gaming history", titled},          // P 1, N 1: a tie is not learning
        {"youtu.be", "Linear algebra lecture 3", learning},
        {"music.youtube.com", "Song", titled},  // any subdomain takes this branch
    };
    for (const Case& c : cases) {
        EXPECT_EQ(classifyByDomain(c.domain, c.title), c.expected)
            << c.domain << " | " << c.title.value_or("<absent>");
    }
    // Look-alikes are ordinary unknown domains.
    for (const char* domain : {"notyoutube.com", "youtube.co", "m.youtu.be", "youtube.com.example.org"}) {
        EXPECT_EQ(classifyByDomain(domain, "Rust tutorial"), nullopt) << domain;
    }
}

// Each educational keyword counts on its own and each entertainment keyword cancels one. The keywords
// that hold another ("crash course") win against one entertainment keyword only if both count.
TEST(VideoTitle, EveryKeywordCountsOnItsOwn) {
    ASSERT_EQ(educationalTitleKeywords().size(), 36u);
    ASSERT_EQ(entertainmentTitleKeywords().size(), 16u);
    for (std::string_view keyword : educationalTitleKeywords()) {
        EXPECT_TRUE(isEducationalVideoTitle(keyword)) << '"' << keyword << '"';
        EXPECT_TRUE(isEducationalVideoTitle(upper(std::string(keyword)))) << '"' << keyword << '"';
    }
    EXPECT_TRUE(isEducationalVideoTitle("crash course vlog"));
    EXPECT_FALSE(isEducationalVideoTitle("course vlog"));
    for (std::string_view keyword : entertainmentTitleKeywords()) {
        EXPECT_FALSE(isEducationalVideoTitle("lesson " + std::string(keyword))) << keyword;
        EXPECT_FALSE(isEducationalVideoTitle(upper("lesson " + std::string(keyword)))) << keyword;
    }
}

TEST(VideoTitle, KeywordsArePlainSubstringsCountedOnce) {
    // Blanks belong to the keyword.
    EXPECT_TRUE(isEducationalVideoTitle("Learn Rust"));
    EXPECT_FALSE(isEducationalVideoTitle("Learning"));
    // Substrings inside longer words count.
    EXPECT_TRUE(isEducationalVideoTitle("Stalking"));
    // An entry counts once however often it occurs.
    EXPECT_FALSE(isEducationalVideoTitle("coding coding coding funny"));
    EXPECT_FALSE(isEducationalVideoTitle("coding funny funny funny programming fails"));
    EXPECT_TRUE(isEducationalVideoTitle("coding programming funny funny"));
    EXPECT_FALSE(isEducationalVideoTitle(""));
}

TEST(VideoTitle, AnyTextIsSafe) {
    const std::string huge(100000, 'a');
    EXPECT_TRUE(isEducationalVideoTitle(huge + " tutorial"));
    EXPECT_FALSE(isEducationalVideoTitle(huge + " tutorial funny"));
    EXPECT_TRUE(isEducationalVideoTitle("\U0001F525 Python tutorial \U0001F525"));
    EXPECT_TRUE(isEducationalVideoTitle("\xFF\xC3( tutorial"));
    EXPECT_FALSE(isEducationalVideoTitle(std::string("tuto\0rial", 9)));
    EXPECT_FALSE(isEducationalVideoTitle(std::string("tutorial\0funny", 14)));  // NUL ends nothing
    EXPECT_EQ(classifyByDomain(std::string("youtube.com\0", 12), "x"), nullopt);
    EXPECT_EQ(classifyByDomain(huge + ".github.com", nullopt), (ClassificationResult{1, 0.92}));
    EXPECT_EQ(classifyByDomain("\u0645\u062B\u0627\u0644.github.com", nullopt),
              (ClassificationResult{1, 0.92}));
}

}  // namespace
}  // namespace larkspan
