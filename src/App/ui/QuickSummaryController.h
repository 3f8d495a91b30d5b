// The quick summary popover's state: the day's summary, categories and recent activities, loaded off
// the main thread when the popover opens and every 30 seconds from creation on (also while it is
// closed); the session and the pending count as the tracker publishes them; the Pomodoro timer as it
// moves. What each section shows comes from App/QuickSummary; this class formats dates and times with
// the user's locale and hands the results to QuickSummaryView as value items and list models.
//
// Each cause of change recomputes what depends on it and sends one signal: dayChanged after a load,
// trackerChanged for the session or the pending count, timerChanged for the timer.
//
// Loads run on the global thread pool and post their result to the main thread; overlapping loads
// are not prevented and the last to arrive wins. The database must outlive every load in flight.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QTimer>
#include <functional>
#include <optional>
#include <vector>

#include "App/ui/QuickSummaryItems.h"
#include "Data/Database.h"
#include "Focus/PomodoroTimer.h"
#include "Platform/Clock.h"
#include "Platform/Subscription.h"
#include "Tracking/SessionManager.h"
#include "ui/ValueListModel.h"

namespace larkspan {

class QuickSummaryController final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the popover over the tracker's objects")

    Q_PROPERTY(SummaryLabels labels READ labels CONSTANT)
    Q_PROPERTY(SummaryDay day READ day NOTIFY dayChanged)
    Q_PROPERTY(larkspan::ValueListModelBase* breakdownBars READ breakdownBars CONSTANT)
    Q_PROPERTY(larkspan::ValueListModelBase* recentRows READ recentRows CONSTANT)
    Q_PROPERTY(SummarySession session READ session NOTIFY trackerChanged)
    Q_PROPERTY(SummaryPending pending READ pending NOTIFY trackerChanged)
    Q_PROPERTY(SummaryTimer timer READ timer NOTIFY timerChanged)

public:
    // Subscribes to the tracker and the timer and starts the 30-second refresh; loads nothing yet.
    // Every argument must outlive the controller.
    QuickSummaryController(Database& database, SessionManager& sessionManager, PomodoroTimer& pomodoroTimer,
                           const Clock& clock, QObject* parent = nullptr);

    // What "Open Dashboard" and the pending banner do; either may be empty.
    void setOnOpenDashboard(std::function<void()> action) { onOpenDashboard_ = std::move(action); }
    void setOnOpenReview(std::function<void()> action) { onOpenReview_ = std::move(action); }

    SummaryLabels labels() const;
    const SummaryDay& day() const { return day_; }
    ValueListModelBase* breakdownBars() { return &breakdownBars_; }
    ValueListModelBase* recentRows() { return &recentRows_; }
    const SummarySession& session() const { return session_; }
    const SummaryPending& pending() const { return pending_; }
    const SummaryTimer& timer() const { return timer_; }

    // Reads the day in the background; dayChanged follows on the main thread.
    Q_INVOKABLE void load();
    // The main timer button: pauses a running timer, starts or resumes any other.
    Q_INVOKABLE void toggleTimer();
    Q_INVOKABLE void stopTimer();
    Q_INVOKABLE void openDashboard();
    // The pending banner: the dashboard's review screen.
    Q_INVOKABLE void openReview();

signals:
    void dayChanged();
    void trackerChanged();
    void timerChanged();

private:
    struct Loaded {
        Date now = 0;
        std::optional<DaySummary> summary;
        std::vector<Category> categories;
        std::vector<ActivityRecord> recent;
    };
    void assign(Loaded loaded);
    void trackerMoved();
    void timerMoved();

    Database& database_;
    SessionManager& sessionManager_;
    PomodoroTimer& pomodoroTimer_;
    const Clock& clock_;
    std::function<void()> onOpenDashboard_;
    std::function<void()> onOpenReview_;

    CategoriesByID categories_;  // of the last load
    SummaryDay day_;
    ValueListModel<BreakdownBarItem> breakdownBars_;
    ValueListModel<RecentRowItem> recentRows_;
    SummarySession session_;
    SummaryPending pending_;
    SummaryTimer timer_;
    QTimer refresh_{this};  // a child, so tests can find it
    std::vector<Subscription> subscriptions_;
};

}  // namespace larkspan
