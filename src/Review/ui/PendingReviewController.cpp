#include "Review/ui/PendingReviewController.h"

#include <QLocale>

#include <utility>

namespace larkspan {

namespace {

ReviewCard card(const ActivityRecord& record, const std::vector<Category>& grid, const QString& timeFormat) {
    ReviewCard card;
    card.key = record.id;
    card.title = toQString(record.displayTitle());
    card.domain = toQString(record.urlDomain);
    card.appName = toQString(record.appName);
    card.timeText = QLocale().toString(localDateTime(record.startTime).time(), timeFormat);
    card.durationText = toQString(PendingReview::formatDuration(record.durationSeconds));
    card.suggestedID = PendingReview::highlightedCategory(record, grid).value_or(0);
    QStringList parts{card.title, card.domain, card.appName, card.timeText, card.durationText};
    parts.removeAll(QString());
    card.description = parts.join(QStringLiteral(", "));
    return card;
}

}  // namespace

PendingReviewController::PendingReviewController(Database& database, SessionManager& sessionManager,
                                                 DashboardController& dashboard, QObject* parent)
    : QObject(parent),
      database_(database),
      dashboard_(dashboard),
      review_(database, sessionManager),
      cards_(this),
      categories_(this) {
    showCategories();
    // A settled card refreshes the count, which would load again: only a count that moved does.
    countSubscription_ = sessionManager.pendingApprovalCount.subscribe([this](std::int64_t count) {
        const bool first = lastCount_ < 0;
        if (count == lastCount_)
            return;
        lastCount_ = count;
        if (!first)
            load();
    });
    connect(&dashboard_, &DashboardController::sidebarChanged, this, [this] {
        showCategories();
        showCards();
    });
}

void PendingReviewController::load() {
    auto resolved = review_.beginLoad();
    emit listChanged();
    Database* database = &database_;
    loader_.start(
        [database, resolved = std::move(resolved)] { return PendingReview::fetch(*database, resolved); },
        [this](std::vector<ActivityRecord> pending) {
            review_.finishLoad(std::move(pending));
            showCards();
            emit listChanged();
        });
}

void PendingReviewController::approve(qint64 activityID, qint64 categoryID) {
    review_.approve(activityID, categoryID);
    showCards();
}

void PendingReviewController::skip(qint64 activityID) {
    review_.skip(activityID);
    showCards();
}

void PendingReviewController::approveAll() {
    review_.approveAll();
    load();
}

void PendingReviewController::showCards() {
    const QString timeFormat = shortTimeFormat(QLocale());
    std::vector<ReviewCard> rows;
    rows.reserve(review_.pending().size());
    for (const auto& record : review_.pending())
        rows.push_back(card(record, grid_, timeFormat));
    cards_.setRows(std::move(rows));
}

void PendingReviewController::showCategories() {
    grid_ = PendingReview::gridCategories(dashboard_.categories());
    categories_.setRows(categoryChoices(grid_));
}

}  // namespace larkspan
