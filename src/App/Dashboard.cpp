#include "App/Dashboard.h"
#include "App/Glyphs.h"
#include "Classification/Palette.h"

#include <algorithm>

namespace larkspan {

namespace {

struct TabEntry {
    DashTab tab;
    const char* label;
    const char* symbol;
};

constexpr std::array<TabEntry, 6> kTabs{{
    {DashTab::timeline, "Timeline", "clock.fill"},
    {DashTab::focus, "Focus", "timer"},
    {DashTab::calendar, "Calendar", "calendar"},
    {DashTab::analytics, "Analytics", "chart.bar.fill"},
    {DashTab::settings, "Settings", "gearshape.fill"},
    {DashTab::pendingReview, "Review", "exclamationmark.circle.fill"},
}};

const TabEntry& info(DashTab tab) {
    return kTabs[static_cast<std::size_t>(tab)];
}

}  // namespace

const char* label(DashTab tab) {
    return info(tab).label;
}

const char* symbolName(DashTab tab) {
    return info(tab).symbol;
}

std::optional<DashTab> dashTabFromLabel(std::string_view text) {
    const auto found =
        std::find_if(kTabs.begin(), kTabs.end(), [text](const TabEntry& t) { return text == t.label; });
    if (found == kTabs.end())
        return std::nullopt;
    return found->tab;
}

const std::array<DashTab, 5>& mainCases() {
    static constexpr std::array<DashTab, 5> tabs{DashTab::timeline, DashTab::focus, DashTab::calendar,
                                                 DashTab::analytics, DashTab::settings};
    return tabs;
}

void onDayTap(DashboardSelection& selection, Date date) {
    selection.date = date;
    selection.tab = DashTab::timeline;
}

std::optional<LiveSessionCard> liveSessionCard(const std::optional<ActivityRecord>& session,
                                               const std::vector<Category>& categories) {
    if (!session)
        return std::nullopt;
    const Category* category = categoryWithID(categories, session->categoryID);
    LiveSessionCard card;
    card.icon = category ? category->icon : glyph::stopwatch;
    card.title = session->displayTitle();
    card.status = std::string("Live \u00B7 ") + (category ? category->name : "Tracking");
    card.color = category ? category->color() : Palette::grey;
    return card;
}

std::optional<ReviewButton> reviewButton(std::int64_t pendingCount) {
    if (pendingCount < 1)
        return std::nullopt;
    return ReviewButton{"Review Activities", std::to_string(pendingCount) + " need categorizing"};
}

}  // namespace larkspan
