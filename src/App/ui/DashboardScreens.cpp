#include "App/ui/DashboardScreens.h"

namespace larkspan {

DashboardScreens::DashboardScreens(const DashboardServices& services, DashboardController& dashboard,
                                   QObject* parent)
    : QObject(parent), calendar_(services.database, dashboard, services.clock, this) {}

}  // namespace larkspan
