// The web-service table and the video-title test. The table is small (14 groups, about a hundred
// patterns) and consulted once per new activity, so it is scanned in order with no index; the
// domain is lower-cased once into a stack buffer and every pattern is a size check and a compare.
#include "Classification/DomainRules.h"

#include <array>

#include "Classification/Category.h"
#include "Platform/AsciiLower.h"

namespace larkspan {

namespace {

namespace id = category_id;

constexpr std::string_view kCodeHosting[] = {
    "github.com", "gitlab.com",     "bitbucket.org",  "codepen.io",
    "replit.com", "stackblitz.com", "codesandbox.io", "glitch.com",
};
constexpr std::string_view kDeveloperReference[] = {
    "stackoverflow.com", "developer.apple.com",
    "docs.swift.org",    "npmjs.com",
    "pypi.org",          "crates.io",
    "pkg.go.dev",        "docs.rs",
    "devdocs.io",        "developer.mozilla.org",
    "w3schools.com",     "ray.so",
};
constexpr std::string_view kAiTools[] = {
    "claude.ai",     "chatgpt.com",           "gemini.google.com", "bard.google.com",
    "perplexity.ai", "copilot.microsoft.com", "cursor.com",        "v0.app",
};
constexpr std::string_view kCourses[] = {
    "udemy.com",       "coursera.org",          "edx.org",        "khanacademy.org",
    "pluralsight.com", "linkedin.com/learning", "skillshare.com", "brilliant.org",
    "codecademy.com",  "frontendmasters.com",   "egghead.io",     "laracasts.com",
};
constexpr std::string_view kReading[] = {
    "medium.com", "substack.com",   "dev.to",        "hashnode.com", "news.ycombinator.com",
    "lobste.rs",  "hackernews.com", "wikipedia.org", "arxiv.org",
};
constexpr std::string_view kMail[] = {"mail.google.com", "outlook.live.com", "outlook.office.com",
                                      "webmail."};
constexpr std::string_view kMessaging[] = {"web.whatsapp.com", "app.slack.com", "discord.com",
                                           "web.telegram.org"};
constexpr std::string_view kPlanning[] = {
    "calendar.google.com", "notion.so",  "linear.app",  "jira.atlassian.com", "trello.com",
    "asana.com",           "monday.com", "clickup.com", "basecamp.com",
};
constexpr std::string_view kDocuments[] = {
    "docs.google.com", "sheets.google.com", "slides.google.com",
    "office.com",      "dropbox.com/paper", "quip.com",
};
constexpr std::string_view kDesign[] = {
    "figma.com", "sketch.cloud", "dribbble.com", "behance.net", "canva.com", "framer.com", "webflow.com",
};
constexpr std::string_view kStreaming[] = {
    "netflix.com", "disneyplus.com",  "primevideo.com", "hotstar.com",
    "hulu.com",    "hbomax.com",      "max.com",        "apple.com/apple-tv-plus",
    "twitch.tv",   "crunchyroll.com", "sonyliv.com",    "zee5.com",
};
constexpr std::string_view kSocial[] = {
    "twitter.com", "x.com",    "instagram.com",   "facebook.com", "tiktok.com", "snapchat.com",
    "threads.com", "bsky.app", "mastodon.social", "reddit.com",   "quora.com",
};
constexpr std::string_view kShopping[] = {
    "amazon.com", "amazon.in", "flipkart.com", "myntra.com", "meesho.com",
    "ebay.com",   "etsy.com",  "shopify.com",  "nykaa.com",  "ajio.com",
};
constexpr std::string_view kProfessionalNetwork[] = {"linkedin.com"};

// Order matters: a domain that ends with patterns of two groups takes the earlier one (netflix.com
// also ends with x.com; outlook.office.com also ends with office.com).
constexpr DomainRuleGroup kGroups[] = {
    {kCodeHosting, id::coding, 0.92},            // 1
    {kDeveloperReference, id::coding, 0.88},     // 2
    {kAiTools, id::aiTools, 0.88},               // 3
    {kCourses, id::learning, 0.95},              // 4
    {kReading, id::reading, 0.80},               // 5
    {kMail, id::email, 0.95},                    // 6
    {kMessaging, id::communication, 0.92},       // 7
    {kPlanning, id::planning, 0.90},             // 8
    {kDocuments, id::writing, 0.85},             // 9
    {kDesign, id::design, 0.90},                 // 10
    {kStreaming, id::entertainment, 0.97},       // 11
    {kSocial, id::socialMedia, 0.88},            // 12
    {kShopping, id::shopping, 0.88},             // 13
    {kProfessionalNetwork, id::research, 0.72},  // 14
};

constexpr std::string_view kEducationalKeywords[] = {
    "tutorial",     "course",      "learn ",      "how to",   "guide",       "explained", "introduction to",
    "crash course", "beginner",    "advanced ",   "lecture",  "university",  "professor", "conference",
    "talk",         "keynote",     "workshop",    "bootcamp", "full course", "in depth",  " review",
    "breakdown",    "analysis",    "documentary", "ted",      " tips",       "coding",    "programming",
    "development",  "engineering", "math",        "science",  "history",     "language",  "lesson",
    "masterclass",
};
constexpr std::string_view kEntertainmentKeywords[] = {
    "funny", "meme",   "prank",   "vlog",      "reaction", "trailer",  "music video", "highlights",
    "fails", "shorts", "podcast", "interview", "gaming",   "gameplay", "let's play",  "unboxing",
};

constexpr std::string_view kYouTube = "youtube.com";
constexpr std::string_view kYouTubeMobile = "m.youtube.com";
constexpr std::string_view kYouTubeShortLink = "youtu.be";
constexpr std::string_view kYouTubeTitle = "YouTube";  // the title of YouTube's own pages

// Confidences of the YouTube branch, all below the approval threshold.
constexpr double kEducationalVideoConfidence = 0.58;
constexpr double kTitledVideoConfidence = 0.45;
constexpr double kUntitledVideoConfidence = 0.55;

bool isYouTube(std::string_view lowerDomain) {
    return lowerDomain == kYouTube || lowerDomain == kYouTubeMobile || lowerDomain == kYouTubeShortLink ||
           (lowerDomain.ends_with(kYouTube) && lowerDomain.size() > kYouTube.size() &&
            lowerDomain[lowerDomain.size() - kYouTube.size() - 1] == '.');
}

std::size_t countOccurring(const AsciiLower& text, std::span<const std::string_view> keywords) {
    std::size_t count = 0;
    for (std::string_view keyword : keywords) {
        if (text.contains(keyword))
            ++count;
    }
    return count;
}

}  // namespace

std::span<const DomainRuleGroup> domainRuleGroups() {
    return kGroups;
}
std::span<const std::string_view> educationalTitleKeywords() {
    return kEducationalKeywords;
}
std::span<const std::string_view> entertainmentTitleKeywords() {
    return kEntertainmentKeywords;
}

bool isEducationalVideoTitle(std::string_view title) {
    const AsciiLower lower(title);
    return countOccurring(lower, kEducationalKeywords) > countOccurring(lower, kEntertainmentKeywords);
}

std::optional<ClassificationResult> classifyByDomain(std::string_view domain,
                                                     const std::optional<std::string>& title) {
    const AsciiLower lower(domain);
    const std::string_view d = lower.view();

    if (isYouTube(d)) {
        if (title && isEducationalVideoTitle(*title)) {
            return ClassificationResult{id::learning, kEducationalVideoConfidence};
        }
        if (title && !title->empty() && *title != kYouTubeTitle) {
            return ClassificationResult{id::entertainment, kTitledVideoConfidence};
        }
        return ClassificationResult{id::entertainment, kUntitledVideoConfidence};
    }

    // Equality and a ".pattern" ending are both special cases of ending with the pattern.
    for (const DomainRuleGroup& group : kGroups) {
        for (std::string_view pattern : group.patterns) {
            if (d.ends_with(pattern))
                return ClassificationResult{group.categoryID, group.confidence};
        }
    }
    return std::nullopt;
}

}  // namespace larkspan
