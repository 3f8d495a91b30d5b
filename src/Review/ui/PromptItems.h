// The answers the floating prompts and the review cards offer, as list rows.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QString>

#include <vector>

#include "Review/ApprovalPopup.h"
#include "ui/QtConversion.h"

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

// One row per category, in their order.
inline std::vector<CategoryChoice> categoryChoices(const std::vector<Category>& categories) {
    std::vector<CategoryChoice> list;
    for (const auto& category : categories)
        list.push_back({category.id, toQString(category.name), toQString(category.icon),
                        toQColor(category.color()), toQString(ApprovalPopup::menuTitle(category))});
    return list;
}

// One answer of the welcome-back card, keyed by its label.
struct IdleOption {
    Q_GADGET
    Q_PROPERTY(QString emoji MEMBER emoji)
    Q_PROPERTY(QString label MEMBER key)
public:
    QString key, emoji;
};

}  // namespace larkspan
