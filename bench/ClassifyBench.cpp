// Classification of a realistic mix of new activities: applications known by bundle id or only by
// name, browsers on table domains and on unknown ones, YouTube videos, pages decided by learned
// rules, and an engine holding about fifty learned rules. One call per new activity, so the aim is
// only that it never matters (well under 5 microseconds).
#include <benchmark/benchmark.h>

#include <optional>
#include <string>
#include <vector>

#include "Classification/CategoryEngine.h"

namespace larkspan {
namespace {

struct Sample {
    std::string appName;
    std::optional<std::string> bundleID, windowTitle, url, domain;
};

std::vector<Sample> makeSamples() {
    std::vector<Sample> samples;
    const char* titles[] = {"main.cpp - larkspan", "Inbox (3)", "Quarterly plan",
                            "~/src: zsh",          "Untitled",  "README.md"};

    // Applications with a bundle id in the table, and Linux applications known only by name or title.
    const std::pair<const char*, const char*> apps[] = {
        {"Code", "com.microsoft.VSCode"},
        {"kitty", "net.kovidgoyal.kitty"},
        {"Slack", "com.tinyspeck.slackmacgap"},
        {"Spotify", "com.spotify.client"},
        {"IntelliJ IDEA", "com.jetbrains.intellij"},
        {"Obsidian", "md.obsidian"},
        {"Files", "org.gnome.Nautilus"},
        {"Thunderbird", "org.mozilla.Thunderbird"},
        {"GNOME Terminal", "org.gnome.Terminal"},
        {"Text Editor", "org.gnome.TextEditor"},
        {"Settings", "org.gnome.Settings"},
        {"LibreOffice Writer", "libreoffice-writer"},
        {"Steam", "com.valvesoftware.Steam"},
        {"VLC media player", "org.videolan.vlc"},
        {"Zoom", "us.zoom.xos"},
        {"GIMP", "org.gimp.GIMP"},
    };
    for (const auto& [name, bundle] : apps) {
        for (const char* title : titles)
            samples.push_back({name, bundle, title, std::nullopt, std::nullopt});
    }

    // Browsers on table domains, unknown domains and YouTube.
    const char* domains[] = {
        "github.com",        "stackoverflow.com",  "docs.rs",
        "chatgpt.com",       "en.wikipedia.org",   "mail.google.com",
        "app.slack.com",     "notion.so",          "docs.google.com",
        "figma.com",         "netflix.com",        "reddit.com",
        "amazon.in",         "linkedin.com",       "news.ycombinator.com",
        "example.org",       "blog.acme.dev",      "intranet.corp",
        "weather.gov",       "localhost",          "bank.example.com",
        "cppreference.com",  "kernel.org",         "duckduckgo.com",
        "maps.google.com",   "gitlab.com",         "crates.io",
        "forum.example.org", "wiki.archlinux.org", "twitch.tv",
    };
    const std::pair<const char*, const char*> browsers[] = {
        {"Firefox", "org.mozilla.firefox"},
        {"Google Chrome", "com.google.Chrome"},
        {"Brave Browser", "com.brave.Browser"},
    };
    for (const auto& [name, bundle] : browsers) {
        for (const char* domain : domains) {
            samples.push_back({name, bundle, std::string("Some page on ") + domain,
                               std::string("https://") + domain + "/p", domain});
        }
    }
    const char* videos[] = {
        "Rust tutorial for beginners - full course",
        "Funny cat fails compilation",
        "MIT 6.006 Lecture 1: Algorithms",
        "Lo-fi beats to study to",
        "Gaming history documentary",
        "Trailer: the movie",
        "YouTube",
        "How to make sourdough bread",
        "Conference keynote 2026",
        "Let's play Minecraft #42",
    };
    for (const char* video : videos) {
        for (const char* domain : {"youtube.com", "m.youtube.com", "music.youtube.com", "youtu.be"}) {
            samples.push_back(
                {"Firefox", "org.mozilla.firefox", video, "https://www.youtube.com/watch?v=abc", domain});
        }
    }
    return samples;
}

CategoryEngine makeEngine(std::vector<Sample>& samples) {
    CategoryEngine engine;
    // About fifty learned rules of every type, as months of answers would leave them.
    for (int i = 0; i < 12; ++i) {
        const std::string site = "site" + std::to_string(i) + ".example.net";
        engine.learnedRules.push_back({"domain", site, 11});
        engine.learnedRules.push_back({"bundle_id", "org.example.tool" + std::to_string(i), 1});
        engine.learnedRules.push_back({"url", "https://www.youtube.com/watch?v=v" + std::to_string(i), 4});
        engine.learnedRules.push_back({"title", "Learned video " + std::to_string(i), 16});
        samples.push_back({"Firefox", "org.mozilla.firefox", "Dashboard", "https://" + site + "/", site});
        samples.push_back(
            {"Tool", "org.example.tool" + std::to_string(i), "Window", std::nullopt, std::nullopt});
        samples.push_back({"Firefox", "org.mozilla.firefox", "Learned video " + std::to_string(i),
                           "https://www.youtube.com/watch?v=x", "youtube.com"});
    }
    engine.learnedRules.push_back({"app_name", "Text Editor", 3});
    engine.learnedRules.push_back({"app_name", "GIMP", 8});
    return engine;
}

void BM_ClassifyMix(benchmark::State& state) {
    std::vector<Sample> samples = makeSamples();
    const CategoryEngine engine = makeEngine(samples);
    std::size_t i = 0;
    for (auto _ : state) {
        const Sample& s = samples[i];
        benchmark::DoNotOptimize(engine.classify(s.appName, s.bundleID, s.windowTitle, s.url, s.domain));
        if (++i == samples.size())
            i = 0;
    }
    state.counters["samples"] = static_cast<double>(samples.size());
    state.counters["learned_rules"] = static_cast<double>(engine.learnedRules.size());
}
BENCHMARK(BM_ClassifyMix);

// The longest road: no learned rule, no table hit, every step tried before the fallback.
void BM_ClassifyFallback(benchmark::State& state) {
    std::vector<Sample> samples;
    const CategoryEngine engine = makeEngine(samples);
    const Sample s{"Some Unknown Application", "org.example.unknown",
                   "An ordinary window title without a dot", "https://unknown.example.org/",
                   "unknown.example.org"};
    for (auto _ : state) {
        benchmark::DoNotOptimize(engine.classify(s.appName, s.bundleID, s.windowTitle, s.url, s.domain));
    }
}
BENCHMARK(BM_ClassifyFallback);

}  // namespace
}  // namespace larkspan
