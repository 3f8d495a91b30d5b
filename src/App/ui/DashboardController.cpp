#include "App/ui/DashboardController.h"

#include "Classification/Palette.h"
#include "ui/QtConversion.h"

namespace larkspan {

DashboardController::DashboardController(Database& database, SessionManager& sessionManager, Date now,
                                         QObject* parent)
    : QObject(parent), database_(database), tabs_(this) {
    selection_.date = now;
    std::vector<SidebarTab> tabs;
    for (DashTab tab : mainCases())
        tabs.push_back({toQString(label(tab)), toQString(label(tab)), toQString(symbolName(tab))});
    tabs_.setRows(std::move(tabs));
    sessionSubscription_ = sessionManager.currentSession.subscribe([this](const auto& session) {
        session_ = session;
        recomputeSidebar();
    });
    countSubscription_ = sessionManager.pendingApprovalCount.subscribe([this](std::int64_t count) {
        pendingCount_ = count;
        recomputeSidebar();
    });
}

void DashboardController::recomputeSidebar(bool categoriesMoved) {
    SidebarLiveCard card{false, {}, {}, {}, toQColor(Palette::grey)};
    if (const auto shown = liveSessionCard(session_, categories_))
        card = {true, toQString(shown->icon), toQString(shown->title), toQString(shown->status),
                toQColor(shown->color)};
    SidebarReviewButton button;
    if (const auto shown = larkspan::reviewButton(pendingCount_))
        button = {true, toQString(shown->title), toQString(shown->detail)};
    if (!categoriesMoved && card == liveCard_ && button == reviewButton_)
        return;
    liveCard_ = std::move(card);
    reviewButton_ = std::move(button);
    emit sidebarChanged();
}

QString DashboardController::selectedTab() const {
    return selection_.tab ? toQString(label(*selection_.tab)) : QString();
}

void DashboardController::setSelectedTab(const QString& text) {
    selection_.tab = dashTabFromLabel(text.toStdString());
    emit selectionChanged();
}

void DashboardController::setSelectedDate(double date) {
    selection_.date = date;
    emit selectionChanged();
}

QString DashboardController::shownTab() const {
    return toQString(label(larkspan::shownTab(selection_.tab)));
}


QString DashboardController::reviewTab() const {
    return toQString(label(DashTab::pendingReview));
}

void DashboardController::loadCategories() {
    auto categories = database_.fetchCategories();
    const bool moved = categories != categories_;
    categories_ = std::move(categories);
    recomputeSidebar(moved);
}

void DashboardController::openReview() {
    selection_.tab = DashTab::pendingReview;
    emit selectionChanged();
}

void DashboardController::dayTapped(double date) {
    onDayTap(selection_, date);
    emit selectionChanged();
}

}  // namespace larkspan
