#include "App/Dashboard.h"

#include <gtest/gtest.h>

#include "ActivityBuilder.h"
#include "Classification/Palette.h"

namespace larkspan {
namespace {

using test::ActivityBuilder;

TEST(Dashboard, TabsAreNamedByTheirLabelAndAnAbsentSelectionShowsTheTimeline) {
    // The label is the raw value, both ways; anything else is no tab.
    for (DashTab tab : {DashTab::timeline, DashTab::focus, DashTab::calendar, DashTab::analytics,
                        DashTab::settings, DashTab::pendingReview})
        EXPECT_EQ(dashTabFromLabel(label(tab)), tab) << label(tab);
    using namespace std::string_view_literals;
    for (std::string_view text : {""sv, "timeline"sv, "Review "sv, "pendingReview"sv, "Focus\0x"sv})
        EXPECT_EQ(dashTabFromLabel(text), std::nullopt) << text;

    EXPECT_EQ(shownTab(std::nullopt), DashTab::timeline);
    // A day tap opens the timeline on that date, from an absent selection too.
    DashboardSelection selection;
    selection.tab.reset();
    onDayTap(selection, 1'800'000'000);
    EXPECT_EQ(selection.tab, DashTab::timeline);
    EXPECT_EQ(selection.date, 1'800'000'000);
}

TEST(Dashboard, LiveCardShowsTheSessionsCategoryOrAGreyStopwatch) {
    const std::vector<Category>& catalogue = Category::seeded();
    const ActivityRecord coding =
        ActivityBuilder(7, 1'700'000'000, 120).app("Code").title("main.cpp").category(1).open();
    EXPECT_EQ(liveSessionCard(std::nullopt, catalogue), std::nullopt);

    EXPECT_EQ(liveSessionCard(coding, catalogue),
              (LiveSessionCard{catalogue[0].icon, coding.displayTitle(), "Live \u00B7 Coding",
                               catalogue[0].color()}));

    // A category the list does not hold (before the window read them, or deleted), none at all, or an
    // empty list: the stopwatch, grey, "Tracking".
    const LiveSessionCard unknown{"\u23F1", coding.displayTitle(), "Live \u00B7 Tracking", Palette::grey};
    EXPECT_EQ(liveSessionCard(coding, {}), unknown);
    ActivityRecord stray = coding;
    stray.categoryID = 999;
    EXPECT_EQ(liveSessionCard(stray, catalogue), unknown);
}

}  // namespace
}  // namespace larkspan
