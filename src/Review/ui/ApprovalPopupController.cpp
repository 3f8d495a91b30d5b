#include "Review/ui/ApprovalPopupController.h"

#include <utility>

namespace larkspan {

ApprovalPopupController::ApprovalPopupController(ApprovalPopup popup, std::chrono::milliseconds tick,
                                                 QObject* parent)
    : QObject(parent), popup_(std::move(popup)), gridCategories_(this), menuCategories_(this) {
    gridCategories_.setRows(categoryChoices(popup_.gridCategories()));
    menuCategories_.setRows(categoryChoices(popup_.menuCategories()));
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setInterval(tick);
    connect(&timer_, &QTimer::timeout, this, &ApprovalPopupController::tick);
}

QString ApprovalPopupController::activityTitle() const {
    return toQString(popup_.record().displayTitle());
}

QString ApprovalPopupController::countdownText() const {
    return toQString(popup_.countdownText());
}

void ApprovalPopupController::setHovered(bool hovered) {
    if (hovered == popup_.isHovered())
        return;
    popup_.setHovered(hovered);
    emit countdownChanged();
}

void ApprovalPopupController::startCountdown() {
    popup_.startCountdown();
    syncTimer();
}

void ApprovalPopupController::choose(qint64 categoryID) {
    timer_.stop();
    popup_.resolve(categoryID);
}

void ApprovalPopupController::skip() {
    timer_.stop();
    popup_.resolve(std::nullopt);
}

void ApprovalPopupController::cardGone() {
    popup_.cardGone();
    syncTimer();
}

void ApprovalPopupController::tick() {
    popup_.tick();
    syncTimer();
    emit countdownChanged();
}

void ApprovalPopupController::syncTimer() {
    if (!popup_.isTimerRunning())
        timer_.stop();
    else if (!timer_.isActive())
        timer_.start();
}

}  // namespace larkspan
