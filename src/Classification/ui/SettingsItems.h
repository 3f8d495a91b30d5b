// The settings tab's rows: the categories with their badges, and the productivity choices of the
// sheets.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QString>

namespace larkspan {

// One category of the list, keyed by its id.
struct CategoryRow {
    Q_GADGET
    Q_PROPERTY(qint64 categoryID MEMBER key)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString emoji MEMBER icon)
    Q_PROPERTY(int productivity MEMBER productivity)  // the stored value: 1, 0 or -1
    Q_PROPERTY(QString badgeText MEMBER badgeText)
    Q_PROPERTY(QColor badgeColor MEMBER badgeColor)
    Q_PROPERTY(bool deletable MEMBER deletable)
public:
    qint64 key = 0;
    QString name, icon;
    int productivity = 0;
    QString badgeText;
    QColor badgeColor;
    bool deletable = true;
};

// One segment of the "Productivity" choice, keyed by the stored value.
struct ProductivityChoice {
    Q_GADGET
    Q_PROPERTY(int value MEMBER key)
    Q_PROPERTY(QString label MEMBER label)
public:
    int key = 0;
    QString label;
};

}  // namespace larkspan
