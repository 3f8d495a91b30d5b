// The welcome-back card: after an absence of more than five minutes it says how long the user was
// away and asks what the time was, offering five answers that each name a category. It has no timer:
// it stays until answered, and "Dismiss" counts as "Break".
//
// The card's whole logic, without a toolkit; the shell forwards clicks. It answers through
// `onResolve` once at most; closing the window is the owner's business.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "Classification/Category.h"

namespace larkspan {

struct IdleReturnOption {
    std::string_view icon;  // one emoji
    std::string_view label;
    std::int64_t categoryID;
};

class IdleReturn {
public:
    using Answer = std::function<void(std::int64_t categoryID)>;

    // The answers, in the order shown. The label is not stored: it only helps the user pick.
    static constexpr std::array<IdleReturnOption, 5> options{{
        {"\u2615", "Break", category_id::awayBreak},
        {"\U0001F37D\uFE0F", "Lunch", category_id::awayBreak},
        {"\U0001F4DE", "On Call", category_id::communication},
        {"\U0001F3C3", "Away", category_id::awayBreak},
        {"\U0001F4CB", "Meeting", category_id::communication},
    }};
    // What "Dismiss" answers: the same as "Break".
    static constexpr std::int64_t dismissCategoryID = category_id::awayBreak;

    // Whole minutes of `seconds` (truncated): "0 min" to "59 min", then "1h 0m", "1h 30m", ….
    // Negative and NaN spans read as 0 min, absurd ones saturate.
    static std::string formatDuration(double seconds);

    IdleReturn(double idleDuration, Answer onResolve);

    double idleDuration() const { return idleDuration_; }
    // "You were away for 12 min. What were you doing?"
    std::string message() const;
    bool isAnswered() const { return answered_; }

    // The option at `index` (a button of the grid); an index out of range answers nothing.
    void choose(std::size_t index);
    // "Dismiss".
    void dismiss() { answer(dismissCategoryID); }

private:
    void answer(std::int64_t categoryID);

    double idleDuration_;  // seconds away
    Answer onResolve_;
    bool answered_ = false;
};

}  // namespace larkspan
