// The dashboard over the tracker rig's real store: a screen test fills the store, then loads a view
// with viewProperties(), or one tab's view with DashboardScreen::show().
#pragma once

#include <QTest>
#include <QVariantMap>

#include "ActivityBuilder.h"
#include "App/ui/DashboardScreens.h"
#include "QuickScreen.h"
#include "ScopedTimeZone.h"
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

// A rig with a screen, made inside the test function, after the controllers so that the view goes first.
struct DashboardScreen : DashboardRig {
    QuickScreen screen;

    // Shows the tab's view `type` over `controller` at `size`, after the controller's first load.
    template <class Controller>
    bool show(const char* type, Controller& controller, QSize size) {
        dashboard.loadCategories();
        const bool loaded = screen.load(type, {{"controller", QVariant::fromValue(&controller)}}, size);
        if constexpr (requires { controller.waitForLoad(); })
            controller.waitForLoad();
        return loaded;
    }
    // Presses `keys` in turn, then waits for what they made `controller` load.
    template <class Controller>
    void keys(Controller& controller, std::initializer_list<Qt::Key> keys) {
        for (Qt::Key key : keys)
            QTest::keyClick(screen.window(), key);
        controller.waitForLoad();
    }
};

}  // namespace larkspan::test
