// The quick summary popover's state: the day's summary, categories and recent activities, loaded off
// the main thread when the popover opens and every 30 seconds from creation on (also while it is
// closed), plus the session, the pending count and the Pomodoro timer, read live whenever the view
// redraws. What each section shows comes from App/QuickSummary; this class formats dates and times
// with the user's locale and hands values to QuickSummaryView.
//
// Loads run on the global thread pool and post their result to the main thread; overlapping loads
// are not prevented and the last to arrive wins. The database must outlive every load in flight.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QTimer>
#include <QVariantList>
#include <QVariantMap>
#include <functional>
#include <optional>
#include <vector>

#include "Data/Database.h"
#include "Focus/PomodoroTimer.h"
#include "Platform/Clock.h"
#include "Platform/Subscription.h"
#include "Tracking/SessionManager.h"

namespace larkspan {

class QuickSummaryController final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the popover over the tracker's objects")

    // Fixed labels by name: today, tracked, breakdownTitle, noDataYet, recentTitle, nothingTracked,
    // tapToCategorize, openDashboard.
    Q_PROPERTY(QVariantMap labels READ labels CONSTANT)

    // From the last load.
    Q_PROPERTY(QString dateText READ dateText NOTIFY summaryChanged)
    Q_PROPERTY(QString totalText READ totalText NOTIFY summaryChanged)  // empty before the first load
    Q_PROPERTY(bool hasBreakdown READ hasBreakdown NOTIFY summaryChanged)
    // Each: icon, name, color, fraction (0–1), duration.
    Q_PROPERTY(QVariantList breakdownBars READ breakdownBars NOTIFY summaryChanged)
    // text and color; empty when there is no line.
    Q_PROPERTY(QVariantMap productivity READ productivity NOTIFY summaryChanged)
    // Each: icon, title, time, duration.
    Q_PROPERTY(QVariantList recentRows READ recentRows NOTIFY summaryChanged)

    // Read from the session manager at each redraw: a load or a change of the timer.
    // icon, title, subtitle, dotColor, hasSession.
    Q_PROPERTY(QVariantMap session READ session NOTIFY redrawn)
    Q_PROPERTY(int pendingCount READ pendingCount NOTIFY redrawn)
    Q_PROPERTY(QString pendingBannerText READ pendingBannerText NOTIFY redrawn)
    Q_PROPERTY(QString pendingFooterText READ pendingFooterText NOTIFY redrawn)

    // The Pomodoro timer: modeIcon, displayTime, modeName, color, progress, running, showsStop,
    // mainSymbol, backgroundOpacity.
    Q_PROPERTY(QVariantMap timer READ timer NOTIFY timerChanged)

public:
    // Subscribes to the timer and starts the 30-second refresh; loads nothing yet. Every argument must
    // outlive the controller.
    QuickSummaryController(Database& database, SessionManager& sessionManager, PomodoroTimer& pomodoroTimer,
                           const Clock& clock, QObject* parent = nullptr);

    // What "Open Dashboard" does; may be empty.
    void setOnOpenDashboard(std::function<void()> action) { onOpenDashboard_ = std::move(action); }

    QVariantMap labels() const;
    QString dateText() const;
    QString totalText() const;
    bool hasBreakdown() const;
    QVariantList breakdownBars() const;
    QVariantMap productivity() const;
    QVariantList recentRows() const;
    QVariantMap session() const;
    int pendingCount() const;
    QString pendingBannerText() const;
    QString pendingFooterText() const;
    QVariantMap timer() const;

    // Reads the day in the background; summaryChanged and redrawn follow on the main thread.
    Q_INVOKABLE void load();
    // The main timer button: pauses a running timer, starts or resumes any other.
    Q_INVOKABLE void toggleTimer();
    Q_INVOKABLE void stopTimer();
    Q_INVOKABLE void openDashboard();

signals:
    void summaryChanged();
    void timerChanged();
    void redrawn();

private:
    struct Loaded {
        Date now = 0;
        std::optional<DaySummary> summary;
        std::vector<Category> categories;
        std::vector<ActivityRecord> recent;
    };
    void assign(Loaded loaded);
    void timerMoved();

    Database& database_;
    SessionManager& sessionManager_;
    PomodoroTimer& pomodoroTimer_;
    const Clock& clock_;
    std::function<void()> onOpenDashboard_;

    Loaded shown_;
    QTimer refresh_{this};  // a child, so tests can find it
    std::vector<Subscription> timerSubscriptions_;
};

}  // namespace larkspan
