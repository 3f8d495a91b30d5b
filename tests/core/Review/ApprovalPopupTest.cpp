#include "Review/ApprovalPopup.h"

#include <gtest/gtest.h>

namespace larkspan {
namespace {

std::vector<std::int64_t> idsOf(const std::vector<Category>& categories) {
    std::vector<std::int64_t> ids;
    for (const auto& c : categories)
        ids.push_back(c.id);
    return ids;
}

// Every answer the card gives, in order.
struct Answers {
    std::vector<std::optional<std::int64_t>> given;
    ApprovalPopup::Answer callback() {
        return [this](std::optional<std::int64_t> id) { given.push_back(id); };
    }
};

ApprovalPopup card(Answers& answers, std::vector<std::int64_t> top = {1, 4, 6, 10, 16, 17}) {
    ActivityRecord record;
    record.id = 7;
    record.appName = "Mystery";
    return ApprovalPopup(record, Category::seeded(), std::move(top), answers.callback());
}

void tickTimes(ApprovalPopup& popup, int times) {
    for (int i = 0; i < times; ++i)
        popup.tick();
}

TEST(ApprovalPopup, GridAndMenuSplitTheCatalogue) {
    struct Case {
        const char* name;
        std::vector<std::int64_t> top, grid;
        std::size_t menuSize;
    };
    const Case cases[] = {
        {"six ids: six buttons, fifteen in the menu", {1, 4, 6, 10, 16, 17}, {1, 4, 6, 10, 16, 17}, 15},
        {"an id without a category is nowhere", {1, 4, 6, 10, 16, 404}, {1, 4, 6, 10, 16}, 16},
        {"a seventh id is offered nowhere", {1, 2, 3, 4, 5, 6, 7}, {1, 2, 3, 4, 5, 6}, 14},
        {"no ids", {}, {}, 21},
    };
    Answers answers;
    for (const Case& c : cases) {
        EXPECT_EQ(idsOf(card(answers, c.top).gridCategories()), c.grid) << c.name;
        EXPECT_EQ(card(answers, c.top).menuCategories().size(), c.menuSize) << c.name;
    }
    // Buttons in the order of the ids, the menu in catalogue order.
    EXPECT_EQ(idsOf(ApprovalPopup::topCategories(Category::seeded(), {4, 99, 1})),
              (std::vector<std::int64_t>{4, 1}));
    EXPECT_EQ(card(answers).menuCategories().front().id, 2);
    EXPECT_EQ(ApprovalPopup::menuTitle(Category::seeded()[0]), "\U0001F4BB Coding");
}

TEST(ApprovalPopup, UntouchedCardAnswersNoneAfter45TicksOnce) {
    Answers answers;
    auto popup = card(answers);
    // Ticks before the card is shown count nothing.
    popup.tick();
    EXPECT_EQ(popup.countdown(), 45);
    popup.startCountdown();
    tickTimes(popup, 44);
    EXPECT_EQ(popup.countdownText(), "1s");
    EXPECT_TRUE(answers.given.empty());
    popup.tick();
    ASSERT_EQ(answers.given.size(), 1u);
    EXPECT_EQ(answers.given[0], std::nullopt);
    EXPECT_FALSE(popup.isTimerRunning());
    // A stray tick, a late click or a restart after the end answer nothing more.
    tickTimes(popup, 3);
    popup.resolve(4);
    popup.startCountdown();
    popup.tick();
    EXPECT_EQ(answers.given.size(), 1u);
    EXPECT_EQ(popup.countdown(), 0);
}

TEST(ApprovalPopup, HoverHoldsTheCountAndLeavingResumesIt) {
    Answers answers;
    auto popup = card(answers);
    popup.startCountdown();
    tickTimes(popup, 40);
    popup.setHovered(true);
    tickTimes(popup, 600);
    EXPECT_EQ(popup.countdown(), 5);
    EXPECT_TRUE(popup.isTimerRunning());
    EXPECT_TRUE(answers.given.empty());
    popup.setHovered(false);
    tickTimes(popup, 5);
    EXPECT_EQ(answers.given, (std::vector<std::optional<std::int64_t>>{std::nullopt}));
}

TEST(ApprovalPopup, AnAnswerStopsTheCountAndIsGivenOnce) {
    // A category from the grid or the menu.
    Answers chosen;
    auto popup = card(chosen);
    popup.startCountdown();
    tickTimes(popup, 10);
    popup.resolve(17);
    EXPECT_FALSE(popup.isTimerRunning());
    tickTimes(popup, 100);
    popup.resolve(std::nullopt);
    EXPECT_EQ(popup.countdown(), 35);
    EXPECT_EQ(chosen.given, (std::vector<std::optional<std::int64_t>>{17}));

    // "Skip" answers none, while hovered too.
    Answers skipped;
    auto skipping = card(skipped);
    skipping.startCountdown();
    skipping.setHovered(true);
    skipping.resolve(std::nullopt);
    skipping.resolve(1);
    EXPECT_EQ(skipped.given, (std::vector<std::optional<std::int64_t>>{std::nullopt}));
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

TEST(ApprovalPopup, CardThatGoesUnansweredNeverAnswers) {
    Answers answers;
    auto popup = card(answers);
    popup.startCountdown();
    popup.cardGone();
    tickTimes(popup, 50);
    popup.resolve(1);
    EXPECT_TRUE(answers.given.empty());
}

}  // namespace
}  // namespace larkspan
