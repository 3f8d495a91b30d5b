#include "App/ui/DashboardScreens.h"

namespace larkspan {

DashboardScreens::DashboardScreens(const DashboardServices& services, DashboardController& dashboard,
                                   QObject* parent)
    : QObject(parent) {
    static_cast<void>(services);
    static_cast<void>(dashboard);
}

}  // namespace larkspan
