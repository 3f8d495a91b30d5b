#include "App/StatusTitle.h"

#include <gtest/gtest.h>

#include "ActivityBuilder.h"
#include "CategorizedRecord.h"

namespace larkspan {
namespace {

ActivityRecord session(std::string app, std::optional<std::int64_t> category) {
    return test::ActivityBuilder(0, 0, 0).app(std::move(app)).category(category);
}

// The timer's segment and the pending badge; the leading segment is a plain TitleSegment{text}.
TitleSegment timerSegment(std::string text, TitleColor color = TitleColor::label) {
    return {std::move(text), 11, TitleWeight::medium, color, true};
}
TitleSegment badge(std::string text) {
    return {std::move(text), 11, TitleWeight::bold, TitleColor::orange, false};
}

TEST(StatusTitle, SegmentsOfEveryIconLabelTimerAndPendingCase) {
    struct Case {
        const char* name;
        std::optional<ActivityRecord> session;
        std::int64_t pending;
        TimerTitleState timer;
        std::vector<TitleSegment> expected;
    };
    const TitleSegment starting{"\u23F1 Starting\u2026"};
    const TimerTitleState off{};
    // clang-format off
    const Case cases[] = {
        {"no session yet", std::nullopt, 0, off, {starting}},
        {"known category", session("Code", 1), 0, off, {{"\U0001F4BB Coding"}}},
        {"unknown category id: the stopwatch and the application", session("Obscure App", 999), 0, off, {{"\u23F1 Obscure App"}}},
        // An away row recategorised by the user keeps "Away" but takes its new category's icon.
        {"away span under another category", session("Away", 12), 0, off, {{"\U0001F3B5 Away"}}},
        {"break paused: the cup, the pause mark, the secondary colour", session("Code", 1), 0, {true, true, false, "04:10"},
         {{"\U0001F4BB Coding"}, timerSegment("  \u2615\u23F8 04:10", TitleColor::secondaryLabel)}},
        {"everything at once", session("Away", 15), 12, {true, false, true, "100:00"},
         {{"\u2615 Away"}, timerSegment("  \U0001F345 100:00"), badge("  12 \u25CF")}},
    };
    // clang-format on
    for (const Case& c : cases) {
        const StatusTitle title = buildStatusTitle(c.session, c.pending, test::seededMap(), c.timer);
        EXPECT_EQ(title.segments, c.expected) << c.name << ": " << title.plainText();
    }
}

}  // namespace
}  // namespace larkspan
