#include "Review/ApprovalPopup.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <sstream>
#include <tuple>

namespace larkspan {
namespace {

std::vector<std::int64_t> idsOf(const std::vector<Category>& categories) {
    std::vector<std::int64_t> ids;
    for (const auto& c : categories)
        ids.push_back(c.id);
    return ids;
}

void tickTimes(ApprovalPopup& popup, int times) {
    for (int i = 0; i < times; ++i)
        popup.tick();
}

ApprovalPopup card(std::vector<std::int64_t> top = {1, 4, 6, 10, 16, 17}) {
    return ApprovalPopup(ActivityRecord{}, Category::seeded(), std::move(top), nullptr);
}

TEST(ApprovalPopup, GridAndMenuSplitTheCatalogue) {
    using Ids = std::vector<std::int64_t>;
    const std::tuple<const char*, Ids, Ids, std::size_t> cases[] = {
        {"six ids: six buttons, fifteen in the menu", {1, 4, 6, 10, 16, 17}, {1, 4, 6, 10, 16, 17}, 15},
        {"an id without a category is nowhere", {1, 4, 6, 10, 16, 404}, {1, 4, 6, 10, 16}, 16},
        {"a seventh id is offered nowhere", {1, 2, 3, 4, 5, 6, 7}, {1, 2, 3, 4, 5, 6}, 14},
        {"no ids", {}, {}, 21},
    };
    for (const auto& [name, top, grid, menuSize] : cases) {
        EXPECT_EQ(idsOf(card(top).gridCategories()), grid) << name;
        EXPECT_EQ(card(top).menuCategories().size(), menuSize) << name;
    }
    // Buttons in the order of the ids, the menu in catalogue order.
    EXPECT_EQ(idsOf(ApprovalPopup::topCategories(Category::seeded(), {4, 99, 1})),
              (std::vector<std::int64_t>{4, 1}));
    EXPECT_EQ(card().menuCategories().front().id, 2);
    EXPECT_EQ(ApprovalPopup::menuTitle(Category::seeded()[0]), "\U0001F4BB Coding");
}

// Each row drives a fresh card through its steps; every card answers at most once.
TEST(ApprovalPopup, CountdownHoverAndClicksGiveOneAnswer) {
    using Answers = std::vector<std::optional<std::int64_t>>;
    using Step = std::function<void(ApprovalPopup&, int)>;
    const std::map<std::string, Step> steps = {
        {"start", [](ApprovalPopup& p, int) { p.startCountdown(); }},
        {"tick", tickTimes},
        {"hover", [](ApprovalPopup& p, int) { p.setHovered(true); }},
        {"leave", [](ApprovalPopup& p, int) { p.setHovered(false); }},
        {"pick", [](ApprovalPopup& p, int id) { p.resolve(id); }},
        {"skip", [](ApprovalPopup& p, int) { p.resolve(std::nullopt); }},
        {"gone", [](ApprovalPopup& p, int) { p.cardGone(); }},
    };
    struct Row {
        const char* steps;
        Answers answers;
        int countdown;
        bool running;
    };
    // clang-format off
    const Row rows[] = {
        {"tick 1 start tick 44",                       {},             1,  true},  // not shown yet: no count
        {"start tick 45",                              {std::nullopt}, 0,  false},
        // A stray tick, a late click or a restart after the end answer nothing more.
        {"start tick 45 tick 3 pick 4 start tick 1",   {std::nullopt}, 0,  false},
        {"start tick 40 hover tick 600 leave tick 5",  {std::nullopt}, 0,  false},
        {"start tick 10 pick 17 tick 100 skip",        {17},           35, false},
        {"start hover skip pick 1",                    {std::nullopt}, 45, false},
        {"start gone tick 50 pick 1",                  {},             45, false},
    };
    // clang-format on
    for (const Row& row : rows) {
        SCOPED_TRACE(row.steps);
        Answers given;
        ApprovalPopup popup(ActivityRecord{}, Category::seeded(), {1}, [&](auto id) { given.push_back(id); });
        std::istringstream script(row.steps);
        for (std::string step; script >> step;) {
            int n = 0;
            if (step == "tick" || step == "pick")
                script >> n;
            steps.at(step)(popup, n);
        }
        EXPECT_EQ(given, row.answers);
        EXPECT_EQ(popup.countdown(), row.countdown);
        EXPECT_EQ(popup.isTimerRunning(), row.running);
    }
}

TEST(ApprovalPopup, AnswerMayDestroyTheCard) {
    // The window owning the card may go inside the answer; the card must not be touched afterwards.
    std::optional<ApprovalPopup> popup;
    std::optional<std::int64_t> given;
    popup.emplace(ActivityRecord{}, Category::seeded(), std::vector<std::int64_t>{1},
                  [&](std::optional<std::int64_t> id) {
                      given = id;
                      popup.reset();
                  });
    popup->resolve(1);
    EXPECT_FALSE(popup.has_value());
    EXPECT_EQ(given, 1);
}

}  // namespace
}  // namespace larkspan
