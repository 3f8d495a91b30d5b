#include "App/ui/DashboardScreens.h"

namespace larkspan {

DashboardScreens::DashboardScreens(const DashboardServices& services, DashboardController& dashboard,
                                   QObject* parent)
    : QObject(parent),
      review_(services.database, services.sessionManager, dashboard),
      settings_(services.database, services.sessionManager, dashboard, services.clock) {}

}  // namespace larkspan
