// The dashboard over the tracker rig's real store: a screen test fills the store, then loads a view
// with viewProperties().
#pragma once

#include <QVariantMap>

#include "App/ui/DashboardScreens.h"
#include "TrackerRig.h"

namespace larkspan::test {

struct DashboardRig : TrackerRig {
    DashboardRig() : TrackerRig(1'763'884'800.0) {}  // 2025-11-23 08:00 UTC

    DashboardServices services{db, *manager, pomodoro, clock};
    DashboardController dashboard{db, *manager, clock.now()};
    DashboardScreens screens{services, dashboard};

    // DashboardView's required properties.
    QVariantMap viewProperties() {
        return {{QStringLiteral("controller"), QVariant::fromValue(&dashboard)},
                {QStringLiteral("screens"), QVariant::fromValue(&screens)}};
    }
};

}  // namespace larkspan::test
