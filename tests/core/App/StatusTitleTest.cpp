#include "App/StatusTitle.h"

#include <gtest/gtest.h>

namespace larkspan {
namespace {

std::map<std::int64_t, Category> catalogue() {
    std::map<std::int64_t, Category> map;
    for (const auto& c : Category::seeded())
        map[c.id] = c;
    return map;
}

ActivityRecord session(std::string app, std::optional<std::int64_t> category) {
    ActivityRecord record;
    record.appName = std::move(app);
    record.categoryID = category;
    return record;
}

TEST(StatusTitle, SegmentsOfEveryIconLabelTimerAndPendingCase) {
    struct Case {
        const char* name;
        std::optional<ActivityRecord> session;
        std::int64_t pending;
        TimerTitleState timer;
        std::vector<TitleSegment> expected;
    };
    const TitleSegment kStarting{"\u23F1 Starting\u2026", 12, TitleWeight::medium, TitleColor::label, false};
    const Case cases[] = {
        Case{"no session yet", std::nullopt, 0, {}, {kStarting}},
        Case{"known category",
             session("Code", 1),
             0,
             {},
             {{"\U0001F4BB Coding", 12, TitleWeight::medium, TitleColor::label, false}}},
        Case{"unknown category id falls back to the stopwatch and the application",
             session("Obscure App", 999),
             0,
             {},
             {{"\u23F1 Obscure App", 12, TitleWeight::medium, TitleColor::label, false}}},
        Case{"no category at all",
             session("Obscure App", std::nullopt),
             0,
             {},
             {{"\u23F1 Obscure App", 12, TitleWeight::medium, TitleColor::label, false}}},
        // An away row recategorised by the user keeps "Away" but takes its new category's icon.
        Case{"away span under another category",
             session("Away", 12),
             0,
             {},
             {{"\U0001F3B5 Away", 12, TitleWeight::medium, TitleColor::label, false}}},
        Case{"focus running",
             session("Code", 1),
             0,
             {true, false, true, "24:59"},
             {{"\U0001F4BB Coding", 12, TitleWeight::medium, TitleColor::label, false},
              {"  \U0001F345 24:59", 11, TitleWeight::medium, TitleColor::label, true}}},
        Case{"break paused shows the cup, the pause mark and the secondary colour",
             session("Code", 1),
             0,
             {true, true, false, "04:10"},
             {{"\U0001F4BB Coding", 12, TitleWeight::medium, TitleColor::label, false},
              {"  \u2615\u23F8 04:10", 11, TitleWeight::medium, TitleColor::secondaryLabel, true}}},
        Case{"pending count with the timer idle",
             std::nullopt,
             3,
             {},
             {kStarting, {"  3 \u25CF", 11, TitleWeight::bold, TitleColor::orange, false}}},
        Case{"everything at once",
             session("Away", 15),
             12,
             {true, false, true, "100:00"},
             {{"\u2615 Away", 12, TitleWeight::medium, TitleColor::label, false},
              {"  \U0001F345 100:00", 11, TitleWeight::medium, TitleColor::label, true},
              {"  12 \u25CF", 11, TitleWeight::bold, TitleColor::orange, false}}}};
    for (const Case& c : cases) {
        const StatusTitle title = buildStatusTitle(c.session, c.pending, catalogue(), c.timer);
        EXPECT_EQ(title.segments, c.expected) << c.name << ": " << title.plainText();
    }
}

TEST(StatusTitle, ExposesWhatTheTrayIconDraws) {
    const StatusTitle title =
        buildStatusTitle(session("Code", 1), 2, catalogue(), {true, true, false, "01:00"});
    EXPECT_EQ(title.icon, "\U0001F4BB");
    EXPECT_EQ(title.timerMark, std::optional<std::string>("\u2615"));
    EXPECT_TRUE(title.timerPaused);
    EXPECT_EQ(title.pendingCount, 2);
    EXPECT_EQ(title.plainText(), "\U0001F4BB Coding  \u2615\u23F8 01:00  2 \u25CF");
}

}  // namespace
}  // namespace larkspan
