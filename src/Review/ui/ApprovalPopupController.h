// The approval card's state for ApprovalPopupView: the activity's title, the category buttons and
// menu entries, and the countdown, driven by a 1-second timer that the card's hover pauses. Clicks
// arrive as choose() and skip(); the card's answer leaves through the ApprovalPopup's callback, once.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QTimer>
#include <chrono>

#include "Review/ApprovalPopup.h"
#include "Review/ui/PromptItems.h"
#include "ui/ValueListModel.h"

namespace larkspan {

class ApprovalPopupController final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the shell for one activity")
    Q_PROPERTY(QString activityTitle READ activityTitle CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* gridCategories READ gridCategories CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* menuCategories READ menuCategories CONSTANT)
    Q_PROPERTY(int countdown READ countdown NOTIFY countdownChanged)
    Q_PROPERTY(QString countdownText READ countdownText NOTIFY countdownChanged)
    Q_PROPERTY(bool counting READ counting NOTIFY countdownChanged)
    Q_PROPERTY(bool hovered READ hovered WRITE setHovered NOTIFY countdownChanged)
public:
    // `tick` is the timer's period; only tests shorten it.
    explicit ApprovalPopupController(ApprovalPopup popup,
                                     std::chrono::milliseconds tick = std::chrono::milliseconds(1000),
                                     QObject* parent = nullptr);

    QString activityTitle() const;
    ValueListModel<CategoryChoice>* gridCategories() { return &gridCategories_; }
    ValueListModel<CategoryChoice>* menuCategories() { return &menuCategories_; }
    int countdown() const { return popup_.countdown(); }
    QString countdownText() const;
    bool counting() const { return popup_.isTimerRunning(); }
    bool hovered() const { return popup_.isHovered(); }
    void setHovered(bool hovered);

    // The card is on screen: the countdown begins.
    Q_INVOKABLE void startCountdown();
    // A grid button or a menu entry.
    Q_INVOKABLE void choose(qint64 categoryID);
    Q_INVOKABLE void skip();
    // The window went away unanswered: the countdown stops for good.
    void cardGone();

signals:
    void countdownChanged();

private:
    void tick();
    void syncTimer();

    ApprovalPopup popup_;
    ValueListModel<CategoryChoice> gridCategories_;
    ValueListModel<CategoryChoice> menuCategories_;
    QTimer timer_;
};

}  // namespace larkspan
