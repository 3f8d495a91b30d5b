#include "Review/ApprovalPopup.h"

#include <algorithm>
#include <utility>

namespace larkspan {

std::vector<Category> ApprovalPopup::topCategories(const std::vector<Category>& categories,
                                                   const std::vector<std::int64_t>& topCategoryIDs) {
    std::vector<Category> top;
    for (const auto id : topCategoryIDs) {
        const auto found = std::find_if(categories.begin(), categories.end(),
                                        [id](const Category& c) { return c.id == id; });
        if (found != categories.end())
            top.push_back(*found);
    }
    return top;
}

std::vector<Category> ApprovalPopup::otherCategories(const std::vector<Category>& categories,
                                                     const std::vector<std::int64_t>& topCategoryIDs) {
    std::vector<Category> others;
    for (const auto& category : categories) {
        if (std::find(topCategoryIDs.begin(), topCategoryIDs.end(), category.id) == topCategoryIDs.end())
            others.push_back(category);
    }
    return others;
}

ApprovalPopup::ApprovalPopup(ActivityRecord record, std::vector<Category> categories,
                             std::vector<std::int64_t> topCategoryIDs, Answer onResolve)
    : record_(std::move(record)),
      categories_(std::move(categories)),
      topCategoryIDs_(std::move(topCategoryIDs)),
      onResolve_(std::move(onResolve)) {}

std::vector<Category> ApprovalPopup::gridCategories() const {
    auto top = topCategories(categories_, topCategoryIDs_);
    if (top.size() > gridSize)
        top.resize(gridSize);
    return top;
}

std::string ApprovalPopup::menuTitle(const Category& category) {
    return category.icon + " " + category.name;
}

std::string ApprovalPopup::countdownText() const {
    return std::to_string(countdown_) + "s";
}

void ApprovalPopup::startCountdown() {
    if (!answered_)
        timerRunning_ = true;
}

void ApprovalPopup::tick() {
    if (!timerRunning_ || isHovered_)
        return;
    --countdown_;
    if (countdown_ <= 0)
        resolve(std::nullopt);
}

void ApprovalPopup::resolve(std::optional<std::int64_t> categoryID) {
    timerRunning_ = false;
    if (answered_)
        return;
    answered_ = true;
    // Moved out first: the answer may close the window that owns this card.
    const Answer answer = std::move(onResolve_);
    if (answer)
        answer(categoryID);
}

void ApprovalPopup::cardGone() {
    timerRunning_ = false;
    answered_ = true;
    onResolve_ = nullptr;
}

}  // namespace larkspan
