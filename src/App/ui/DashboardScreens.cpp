#include "App/ui/DashboardScreens.h"

namespace larkspan {

DashboardScreens::DashboardScreens(const DashboardServices& services, DashboardController& dashboard,
                                   QObject* parent)
    : QObject(parent),
      focus_(services.database, services.pomodoroTimer, services.clock, this),
      timeline_(services.database, dashboard, services.clock, this),
      calendar_(services.database, dashboard, services.clock, this),
      analytics_(services.database, services.clock),
      review_(services.database, services.sessionManager, dashboard),
      settings_(services.database, services.sessionManager, dashboard, services.clock) {}

}  // namespace larkspan
