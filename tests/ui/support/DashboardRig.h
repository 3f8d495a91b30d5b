// The dashboard over a real store in a temporary folder, with the session manager, the timer and the
// clock of the tests: a screen test fills the store, then loads a view with viewProperties().
#pragma once

#include <QVariantMap>

#include <memory>

#include "App/ui/DashboardScreens.h"
#include "Classification/CategoryEngine.h"
#include "Data/Database.h"
#include "Focus/PomodoroTimer.h"
#include "ManualClock.h"
#include "ManualMainQueue.h"
#include "ManualTimerHub.h"
#include "MemoryKeyValueStore.h"
#include "RecordingSoundPlayer.h"
#include "TempDir.h"
#include "Tracking/SessionManager.h"

namespace larkspan::test {

struct DashboardRig {
    TempDir dir;
    Database db{dir / "tracker.db"};
    CategoryEngine engine;
    ManualClock clock{1'763'884'800.0};  // 2025-11-23 08:00 UTC
    ManualMainQueue mainQueue;
    ManualTimerHub timers{clock};
    std::shared_ptr<SessionManager> manager = SessionManager::create(db, engine, clock, mainQueue, timers);
    MemoryKeyValueStore defaults;
    RecordingSoundPlayer sounds;
    PomodoroTimer timer{clock, defaults, sounds, timers};
    DashboardServices services{db, *manager, timer, clock};
    DashboardController dashboard{db, *manager, clock.now()};
    DashboardScreens screens{services, dashboard};

    // DashboardView's required properties.
    QVariantMap viewProperties() {
        return {{QStringLiteral("controller"), QVariant::fromValue(&dashboard)},
                {QStringLiteral("screens"), QVariant::fromValue(&screens)}};
    }
};

}  // namespace larkspan::test
