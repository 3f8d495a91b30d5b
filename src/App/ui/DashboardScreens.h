// The controllers of the dashboard's screens, made with the window and kept as long as it lives, so
// each screen keeps its state (filters, scroll, a half-typed task) while the person moves between
// tabs and across closing the window. The view hands each screen its controller.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "Analytics/ui/AnalyticsController.h"
#include "Analytics/ui/CalendarController.h"
#include "App/ui/DashboardController.h"
#include "Classification/ui/SettingsController.h"
#include "Focus/PomodoroTimer.h"
#include "Focus/ui/FocusController.h"
#include "Review/ui/PendingReviewController.h"
#include "Timeline/ui/TimelineController.h"

namespace larkspan {

// What the screens read and drive; all of it outlives the window.
struct DashboardServices {
    Database& database;
    SessionManager& sessionManager;
    PomodoroTimer& pomodoroTimer;
    const Clock& clock;
};

class DashboardScreens final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The dashboard window makes its screens.")
    Q_PROPERTY(larkspan::TimelineController* timeline READ timeline CONSTANT)
    Q_PROPERTY(larkspan::FocusController* focus READ focus CONSTANT)
    Q_PROPERTY(larkspan::CalendarController* calendar READ calendar CONSTANT)
    Q_PROPERTY(larkspan::AnalyticsController* analytics READ analytics CONSTANT)
    Q_PROPERTY(larkspan::SettingsController* settings READ settings CONSTANT)
    Q_PROPERTY(larkspan::PendingReviewController* review READ review CONSTANT)

public:
    // `dashboard` holds what the screens share: the selected date and the categories.
    DashboardScreens(const DashboardServices& services, DashboardController& dashboard,
                     QObject* parent = nullptr);

    FocusController* focus() { return &focus_; }
    TimelineController* timeline() { return &timeline_; }
    CalendarController* calendar() { return &calendar_; }
    AnalyticsController* analytics() { return &analytics_; }
    PendingReviewController* review() { return &review_; }
    SettingsController* settings() { return &settings_; }

private:
    FocusController focus_;
    TimelineController timeline_;
    CalendarController calendar_;
    AnalyticsController analytics_;
    PendingReviewController review_;
    SettingsController settings_;
};

}  // namespace larkspan
