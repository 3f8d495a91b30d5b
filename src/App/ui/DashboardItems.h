// The values the dashboard's sidebar shows, as QML value types and list rows.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QString>

namespace larkspan {

// The session in progress at the top of the sidebar.
struct SidebarLiveCard {
    Q_GADGET
    QML_VALUE_TYPE(sidebarLiveCard)
    Q_PROPERTY(bool shown MEMBER shown)  // false without a session
    Q_PROPERTY(QString icon MEMBER icon)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString status MEMBER status)
    Q_PROPERTY(QColor color MEMBER color)  // the dot, and the card at a wash of it
public:
    bool shown = false;
    QString icon, title, status;
    QColor color;
    bool operator==(const SidebarLiveCard&) const = default;
};

// The way to the review screen below the tab list.
struct SidebarReviewButton {
    Q_GADGET
    QML_VALUE_TYPE(sidebarReviewButton)
    Q_PROPERTY(bool shown MEMBER shown)  // false while nothing waits
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString detail MEMBER detail)
public:
    bool shown = false;
    QString title, detail;
    bool operator==(const SidebarReviewButton&) const = default;
};

// One tab of the sidebar list, keyed by its label.
struct SidebarTab {
    Q_GADGET
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(QString symbol MEMBER symbol)
public:
    QString key, label, symbol;
};

}  // namespace larkspan
