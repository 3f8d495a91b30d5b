#include "Review/IdleReturn.h"

#include <utility>

#include "Platform/Clock.h"

namespace larkspan {

std::string IdleReturn::formatDuration(double seconds) {
    // Truncation toward zero, safe for NaN and absurd values; an absence cannot be negative.
    const std::int64_t whole = wholeSecondsBetween(0.0, seconds);
    const std::int64_t m = whole > 0 ? whole / 60 : 0;
    if (m < 60)
        return std::to_string(m) + " min";
    return std::to_string(m / 60) + "h " + std::to_string(m % 60) + "m";
}

IdleReturn::IdleReturn(double idleDuration, Answer onResolve)
    : idleDuration_(idleDuration), onResolve_(std::move(onResolve)) {}

std::string IdleReturn::message() const {
    return "You were away for " + formatDuration(idleDuration_) + ". What were you doing?";
}

void IdleReturn::choose(std::size_t index) {
    if (index < options.size())
        answer(options[index].categoryID);
}

void IdleReturn::answer(std::int64_t categoryID) {
    if (answered_)
        return;
    answered_ = true;
    // Moved out first: the answer may close the window that owns this card.
    const Answer onResolve = std::move(onResolve_);
    if (onResolve)
        onResolve(categoryID);
}

}  // namespace larkspan
