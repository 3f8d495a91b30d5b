// The dashboard window's state and what its sidebar shows. It holds what the screens share and keeps
// across closing the window — the selected tab, the selected date and the categories — and follows
// the tracker's published session and pending count to redraw the sidebar. The texts and colours come
// from App/Dashboard; the view only lays them out.
//
// Each cause of change sends one signal: selectionChanged for the tab or the date, sidebarChanged for
// the session, the pending count or the categories.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

#include <optional>
#include <vector>

#include "App/Dashboard.h"
#include "App/ui/DashboardItems.h"
#include "Data/Database.h"
#include "Platform/Subscription.h"
#include "Tracking/SessionManager.h"
#include "ui/ValueListModel.h"

namespace larkspan {

class DashboardController final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The dashboard window makes its controller.")

    // The selected tab's label; empty while none is selected. Setting an unknown label clears it.
    Q_PROPERTY(QString selectedTab READ selectedTab WRITE setSelectedTab NOTIFY selectionChanged)
    // Seconds since 1970: the day the timeline and the calendar show.
    Q_PROPERTY(double selectedDate READ selectedDate WRITE setSelectedDate NOTIFY selectionChanged)
    // The label of the tab whose screen shows; an absent selection is the timeline.
    Q_PROPERTY(QString shownTab READ shownTab NOTIFY selectionChanged)
    // The sidebar's list of the main tabs.
    Q_PROPERTY(larkspan::ValueListModelBase* tabs READ tabs CONSTANT)

    Q_PROPERTY(SidebarLiveCard liveCard READ liveCard NOTIFY sidebarChanged)
    Q_PROPERTY(SidebarReviewButton reviewButton READ reviewButton NOTIFY sidebarChanged)
    Q_PROPERTY(QString reviewTab READ reviewTab CONSTANT)

public:
    // `database` and `sessionManager` must outlive the controller. `now` (seconds since 1970) is the
    // first selected date.
    DashboardController(Database& database, SessionManager& sessionManager, Date now,
                        QObject* parent = nullptr);

    QString selectedTab() const;
    void setSelectedTab(const QString& label);
    double selectedDate() const { return selection_.date; }
    void setSelectedDate(double date);
    QString shownTab() const;
    ValueListModelBase* tabs() { return &tabs_; }

    const SidebarLiveCard& liveCard() const { return liveCard_; }
    const SidebarReviewButton& reviewButton() const { return reviewButton_; }
    QString reviewTab() const;

    const std::vector<Category>& categories() const { return categories_; }

    // Reads the categories from the store; the window calls it each time it comes on screen.
    Q_INVOKABLE void loadCategories();
    // The review button: opens the review screen.
    Q_INVOKABLE void openReview();
    // A calendar day: shows that date on the timeline.
    Q_INVOKABLE void dayTapped(double date);

signals:
    void selectionChanged();
    void sidebarChanged();

private:
    // Sends sidebarChanged when what it shows moved, or always when the categories did.
    void recomputeSidebar(bool categoriesMoved = false);

    Database& database_;
    DashboardSelection selection_;
    std::vector<Category> categories_;
    ValueListModel<SidebarTab> tabs_;
    // The tracker's values as last published; copies, so the sidebar never reads the manager itself.
    std::optional<ActivityRecord> session_;
    std::int64_t pendingCount_ = 0;
    SidebarLiveCard liveCard_;
    SidebarReviewButton reviewButton_;
    Subscription sessionSubscription_;
    Subscription countSubscription_;
};

}  // namespace larkspan
