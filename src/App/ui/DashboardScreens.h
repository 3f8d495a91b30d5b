// The controllers of the dashboard's screens, made with the window and kept as long as it lives, so
// each screen keeps its state (filters, scroll, a half-typed task) while the person moves between
// tabs and across closing the window. The view hands each screen its controller.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>

#include "Analytics/ui/CalendarController.h"
#include "App/ui/DashboardController.h"
#include "Focus/PomodoroTimer.h"

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
    Q_PROPERTY(larkspan::CalendarController* calendar READ calendar CONSTANT)

public:
    // `dashboard` holds what the screens share: the selected date and the categories.
    DashboardScreens(const DashboardServices& services, DashboardController& dashboard,
                     QObject* parent = nullptr);

    CalendarController* calendar() { return &calendar_; }

private:
    CalendarController calendar_;
};

}  // namespace larkspan
