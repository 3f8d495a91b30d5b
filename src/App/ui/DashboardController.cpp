#include "App/ui/DashboardController.h"

#include <QVariantMap>

namespace larkspan {

namespace {

QString qs(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QColor toQColor(const Color& color) {
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue));
}

}  // namespace

DashboardController::DashboardController(Database& database, SessionManager& sessionManager, Date now,
                                         QObject* parent)
    : QObject(parent), database_(database) {
    selection_.date = now;
    sessionSubscription_ = sessionManager.currentSession.subscribe([this](const auto& session) {
        session_ = session;
        emit sidebarChanged();
    });
    countSubscription_ = sessionManager.pendingApprovalCount.subscribe([this](std::int64_t count) {
        pendingCount_ = count;
        emit sidebarChanged();
    });
}

QString DashboardController::selectedTab() const {
    return selection_.tab ? QString::fromLatin1(label(*selection_.tab)) : QString();
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
    return QString::fromLatin1(label(larkspan::shownTab(selection_.tab)));
}

QString DashboardController::shownSymbol() const {
    return QString::fromLatin1(symbolName(larkspan::shownTab(selection_.tab)));
}

QString DashboardController::shownComingLine() const {
    return QString::fromUtf8(comingLine(larkspan::shownTab(selection_.tab)));
}

QVariantList DashboardController::tabs() const {
    QVariantList list;
    for (DashTab tab : mainCases())
        list.append(QVariantMap{{QStringLiteral("label"), QString::fromLatin1(label(tab))},
                                {QStringLiteral("symbol"), QString::fromLatin1(symbolName(tab))}});
    return list;
}

QString DashboardController::sessionIcon() const {
    const auto shown = card();
    return shown ? qs(shown->icon) : QString();
}

QString DashboardController::sessionTitle() const {
    const auto shown = card();
    return shown ? qs(shown->title) : QString();
}

QString DashboardController::sessionStatus() const {
    const auto shown = card();
    return shown ? qs(shown->status) : QString();
}

QColor DashboardController::sessionColor() const {
    const auto shown = card();
    return toQColor(shown ? shown->color : kUnknownCategoryGrey);
}

QString DashboardController::reviewTitle() const {
    const auto button = reviewButton(pendingCount_);
    return button ? qs(button->title) : QString();
}

QString DashboardController::reviewDetail() const {
    const auto button = reviewButton(pendingCount_);
    return button ? qs(button->detail) : QString();
}

QString DashboardController::reviewTab() const {
    return QString::fromLatin1(label(DashTab::pendingReview));
}

QColor DashboardController::reviewColor() const {
    return toQColor(kReviewOrange);
}

void DashboardController::loadCategories() {
    categories_ = database_.fetchCategories();
    emit sidebarChanged();
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
