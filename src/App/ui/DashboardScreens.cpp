#include "App/ui/DashboardScreens.h"

namespace larkspan {

DashboardScreens::DashboardScreens(const DashboardServices& services, DashboardController& dashboard,
                                   QObject* parent)
    : QObject(parent), analytics_(services.database, services.clock) {
    static_cast<void>(dashboard);
}

}  // namespace larkspan
