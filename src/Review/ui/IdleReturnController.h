// The welcome-back card's state for IdleReturnView: the line saying how long the user was away and
// the five answers. A click on an answer or on "Dismiss" leaves through the IdleReturn's callback, once.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QVariantList>

#include "Review/IdleReturn.h"

namespace larkspan {

class IdleReturnController final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the shell for one return")
    Q_PROPERTY(QString message READ message CONSTANT)
    // Each entry: icon, label.
    Q_PROPERTY(QVariantList options READ options CONSTANT)
public:
    explicit IdleReturnController(IdleReturn card, QObject* parent = nullptr);

    QString message() const;
    QVariantList options() const;

    // The answer at `index` of options.
    Q_INVOKABLE void choose(int index);
    Q_INVOKABLE void dismiss();

private:
    IdleReturn card_;
};

}  // namespace larkspan
