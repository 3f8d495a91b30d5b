// The approval card: the floating question about one activity the engine was unsure of. It offers
// the user's most used categories as a grid and every other one in a menu, and counts down 45 seconds
// before answering "no answer" by itself; the count stands still while the pointer rests on the card.
//
// This is the card's whole logic, without a toolkit: the shell drives `tick()` from a 1-second timer,
// reports hovering and forwards clicks. The card answers through `onResolve` exactly once, whether by
// a click, "Skip" or running out; closing the window is the owner's business.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "Classification/Category.h"
#include "Tracking/ActivityRecord.h"

namespace larkspan {

class ApprovalPopup {
public:
    // A category id, or none to leave the activity pending.
    using Answer = std::function<void(std::optional<std::int64_t>)>;

    static constexpr int countdownStart = 45;    // seconds
    static constexpr double tickInterval = 1.0;  // seconds between ticks
    static constexpr std::size_t gridSize = 6;   // buttons at most

    // `topCategoryIDs` in their order, each looked up in `categories`; unknown ids are passed over.
    static std::vector<Category> topCategories(const std::vector<Category>& categories,
                                               const std::vector<std::int64_t>& topCategoryIDs);
    // `categories` in their order, without those whose id is in `topCategoryIDs`.
    static std::vector<Category> otherCategories(const std::vector<Category>& categories,
                                                 const std::vector<std::int64_t>& topCategoryIDs);

    ApprovalPopup(ActivityRecord record, std::vector<Category> categories,
                  std::vector<std::int64_t> topCategoryIDs, Answer onResolve);

    const ActivityRecord& record() const { return record_; }
    // The first gridSize of topCategories: one button each.
    std::vector<Category> gridCategories() const;
    // The entries of the "More…" menu.
    std::vector<Category> menuCategories() const { return otherCategories(categories_, topCategoryIDs_); }
    // One menu entry: icon, a blank, name.
    static std::string menuTitle(const Category& category);

    int countdown() const { return countdown_; }
    // The countdown as shown: the number followed by "s".
    std::string countdownText() const;
    bool isHovered() const { return isHovered_; }
    // Whether the 1-second timer should be running: started and neither answered nor gone.
    bool isTimerRunning() const { return timerRunning_; }
    bool isAnswered() const { return answered_; }

    // The card is shown: the timer starts, once; nothing after an answer.
    void startCountdown();
    // One second passed. Nothing while hovered or when the timer is not running; at 0 the timer
    // stops and the card answers none.
    void tick();
    void setHovered(bool hovered) { isHovered_ = hovered; }
    // A grid button or menu entry (an id) or "Skip" (none): stops the timer and answers, unless an
    // answer was already given, in which case nothing happens.
    void resolve(std::optional<std::int64_t> categoryID);
    // The card goes without an answer: the timer stops and no answer will come.
    void cardGone();

private:
    ActivityRecord record_;
    std::vector<Category> categories_;
    std::vector<std::int64_t> topCategoryIDs_;
    Answer onResolve_;
    int countdown_ = countdownStart;  // seconds left
    bool isHovered_ = false;
    bool timerRunning_ = false;
    bool answered_ = false;
};

}  // namespace larkspan
