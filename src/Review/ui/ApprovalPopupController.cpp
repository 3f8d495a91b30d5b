#include "Review/ui/ApprovalPopupController.h"

#include <QColor>
#include <QVariantMap>
#include <utility>

namespace larkspan {

namespace {

QVariantList entries(const std::vector<Category>& categories) {
    QVariantList list;
    for (const auto& category : categories) {
        const Color color = category.color();
        list.append(QVariantMap{
            {QStringLiteral("id"), QVariant::fromValue<qint64>(category.id)},
            {QStringLiteral("name"), QString::fromStdString(category.name)},
            {QStringLiteral("icon"), QString::fromStdString(category.icon)},
            {QStringLiteral("color"),
             QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                              static_cast<float>(color.blue))},
            {QStringLiteral("title"), QString::fromStdString(ApprovalPopup::menuTitle(category))},
        });
    }
    return list;
}

}  // namespace

ApprovalPopupController::ApprovalPopupController(ApprovalPopup popup, std::chrono::milliseconds tick,
                                                 QObject* parent)
    : QObject(parent), popup_(std::move(popup)) {
    timer_.setTimerType(Qt::PreciseTimer);
    timer_.setInterval(tick);
    connect(&timer_, &QTimer::timeout, this, &ApprovalPopupController::tick);
}

QString ApprovalPopupController::activityTitle() const {
    return QString::fromStdString(popup_.record().displayTitle());
}

QVariantList ApprovalPopupController::gridCategories() const {
    return entries(popup_.gridCategories());
}

QVariantList ApprovalPopupController::menuCategories() const {
    return entries(popup_.menuCategories());
}

QString ApprovalPopupController::countdownText() const {
    return QString::fromStdString(popup_.countdownText());
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
