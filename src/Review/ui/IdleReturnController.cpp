#include "Review/ui/IdleReturnController.h"

#include <utility>

#include "ui/QtConversion.h"

namespace larkspan {

IdleReturnController::IdleReturnController(IdleReturn card, QObject* parent)
    : QObject(parent), card_(std::move(card)), options_(this) {
    std::vector<IdleOption> options;
    for (const auto& option : IdleReturn::options)
        options.push_back({toQString(option.label), toQString(option.icon)});
    options_.setRows(std::move(options));
}

QString IdleReturnController::message() const {
    return toQString(card_.message());
}

void IdleReturnController::choose(int index) {
    if (index >= 0)
        card_.choose(static_cast<std::size_t>(index));
}

void IdleReturnController::dismiss() {
    card_.dismiss();
}

}  // namespace larkspan
