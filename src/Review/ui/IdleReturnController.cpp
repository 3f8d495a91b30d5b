#include "Review/ui/IdleReturnController.h"

#include <QVariantMap>
#include <utility>

namespace larkspan {

namespace {

QString text(std::string_view view) {
    return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
}

}  // namespace

IdleReturnController::IdleReturnController(IdleReturn card, QObject* parent)
    : QObject(parent), card_(std::move(card)) {}

QString IdleReturnController::message() const {
    return QString::fromStdString(card_.message());
}

QVariantList IdleReturnController::options() const {
    QVariantList list;
    for (const auto& option : IdleReturn::options)
        list.append(QVariantMap{{QStringLiteral("icon"), text(option.icon)},
                                {QStringLiteral("label"), text(option.label)}});
    return list;
}

void IdleReturnController::choose(int index) {
    if (index >= 0)
        card_.choose(static_cast<std::size_t>(index));
}

void IdleReturnController::dismiss() {
    card_.dismiss();
}

}  // namespace larkspan
