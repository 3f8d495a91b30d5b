// The answers the floating prompts offer, as list rows.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QString>

namespace larkspan {

// A category to answer with, keyed by its id: a grid button or an entry of "More…".
struct CategoryChoice {
    Q_GADGET
    Q_PROPERTY(qint64 categoryID MEMBER key)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString emoji MEMBER emoji)
    Q_PROPERTY(QColor tint MEMBER tint)
    Q_PROPERTY(QString menuTitle MEMBER menuTitle)
public:
    qint64 key = 0;
    QString name, emoji;
    QColor tint;
    QString menuTitle;
};

// One answer of the welcome-back card, keyed by its label.
struct IdleOption {
    Q_GADGET
    Q_PROPERTY(QString emoji MEMBER emoji)
    Q_PROPERTY(QString label MEMBER key)
public:
    QString key, emoji;
};

}  // namespace larkspan
