// The review tab's state for PendingReviewView: the cards of the activities waiting for a category
// and the category grid they offer. It loads when the view appears and whenever the tracker's pending
// count moves, off the main thread; the answers write at once and the card goes.
//
// One signal per cause: listChanged for the cards and the loading mark; the grid is a model of its own
// that follows the dashboard's categories.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "App/ui/DashboardController.h"
#include "Review/PendingReview.h"
#include "Review/ui/PromptItems.h"
#include "Review/ui/ReviewItems.h"
#include "ui/BackgroundLoad.h"
#include "ui/ValueListModel.h"

namespace larkspan {

class PendingReviewController final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The dashboard makes its screens' controllers.")

    Q_PROPERTY(bool loading READ loading NOTIFY listChanged)
    Q_PROPERTY(larkspan::ValueListModelBase* cards READ cards CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* categories READ categories CONSTANT)

public:
    // Everything given must outlive the controller.
    PendingReviewController(Database& database, SessionManager& sessionManager,
                            DashboardController& dashboard, QObject* parent = nullptr);

    bool loading() const { return review_.isLoading(); }
    ValueListModelBase* cards() { return &cards_; }
    ValueListModelBase* categories() { return &categories_; }

    // Reads the pending activities again; the view calls it when it appears.
    Q_INVOKABLE void load();
    // A category picked on the card of `activityID`: settled and learned.
    Q_INVOKABLE void approve(qint64 activityID, qint64 categoryID);
    // The card's "Skip": settled with its suggestion, nothing learned.
    Q_INVOKABLE void skip(qint64 activityID);
    // "Approve All as-is".
    Q_INVOKABLE void approveAll();
    // Waits for a running load and takes its result, for tests.
    void waitForLoad() { loader_.wait(); }

signals:
    void listChanged();

private:
    void showCards();
    void showCategories();

    Database& database_;
    DashboardController& dashboard_;
    PendingReview review_;
    std::vector<Category> grid_;
    ValueListModel<ReviewCard> cards_;
    ValueListModel<CategoryChoice> categories_;
    BackgroundLoad<std::vector<ActivityRecord>> loader_;
    std::int64_t lastCount_ = -1;
    Subscription countSubscription_;
};

}  // namespace larkspan
