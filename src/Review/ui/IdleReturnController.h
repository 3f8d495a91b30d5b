// The welcome-back card's state for IdleReturnView: the line saying how long the user was away and
// the five answers. A click on an answer or on "Dismiss" leaves through the IdleReturn's callback, once.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include "Review/IdleReturn.h"
#include "Review/ui/PromptItems.h"
#include "ui/ValueListModel.h"

namespace larkspan {

class IdleReturnController final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the shell for one return")
    Q_PROPERTY(QString message READ message CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* options READ options CONSTANT)
public:
    explicit IdleReturnController(IdleReturn card, QObject* parent = nullptr);

    QString message() const;
    ValueListModel<IdleOption>* options() { return &options_; }

    // The answer at `index` of options.
    Q_INVOKABLE void choose(int index);
    Q_INVOKABLE void dismiss();

private:
    IdleReturn card_;
    ValueListModel<IdleOption> options_;
};

}  // namespace larkspan
