// "Start Larkspan at login" on the dashboard's Settings page and in the tray menu: both show the
// entry's presence, a change in one shows in the other, a file removed by hand reads as off, and a
// refused change leaves the switch off with the reason.
#include <QTest>

#include <filesystem>
#include <fstream>

#include "App/ui/DashboardController.h"
#include "App/ui/StartAtLoginController.h"
#include "App/ui/TrayIcon.h"
#include "Classification/CategoryEngine.h"
#include "ManualClock.h"
#include "ManualMainQueue.h"
#include "ManualTimerHub.h"
#include "MemoryKeyValueStore.h"
#include "QuickScreen.h"
#include "RecordingNotifier.h"
#include "TempDir.h"
#include "Tracking/SessionManager.h"

using namespace larkspan;

namespace {

struct Setup {
    test::TempDir dir;
    std::filesystem::path entry = dir / "config/autostart/org.larkspan.Larkspan.desktop";
    test::MemoryKeyValueStore settings;
    test::RecordingNotifier notifier;
    StartAtLogin startAtLogin{entry, "/usr/bin/larkspan", settings};
    Database db{dir / "tracker.db"};
    CategoryEngine engine;
    test::ManualClock clock{1'763'884'800.0};
    test::ManualMainQueue mainQueue;
    test::ManualTimerHub timers{clock};
    std::shared_ptr<SessionManager> manager = SessionManager::create(db, engine, clock, mainQueue, timers);
    DashboardController dashboard{db, *manager, clock.now()};
    QuickScreen screen;
    TrayIcon tray;

    // The Settings page of the dashboard and a tray menu, both over the screen engine's one switch.
    bool open() {
        StartAtLoginController::of(screen.engine()).setStartAtLogin(&startAtLogin, &notifier);
        tray.setMenuItems([] {
            return std::vector<MenuItem>{{"Open Dashboard", "d", MenuItem::Action::openDashboard},
                                         {"", "", MenuItem::Action::separator},
                                         {"Quit Larkspan", "q", MenuItem::Action::quit}};
        });
        tray.setStartAtLogin(&StartAtLoginController::of(screen.engine()));
        dashboard.setSelectedTab(QStringLiteral("Settings"));
        return screen.load("DashboardView", {{"controller", QVariant::fromValue(&dashboard)}}, {1100, 740});
    }
    bool switchOn() const { return screen.find("startAtLoginSwitch")->property("checked").toBool(); }
    QAction* menuEntry() {
        emit const_cast<QMenu&>(tray.menu()).aboutToShow();
        const auto actions = tray.menu().actions();
        return actions.size() == 5 && actions[1]->isSeparator() && actions[3]->isSeparator() ? actions[2]
                                                                                             : nullptr;
    }
};

}  // namespace

class StartAtLoginSwitchTest : public QObject {
    Q_OBJECT
private slots:
    void switchAndMenuShowTheEntrysPresence() {
        Setup s;
        QVERIFY(s.open());
        QVERIFY(s.screen.find("startAtLoginSwitch")->isVisible());
        QVERIFY(!s.switchOn());
        QVERIFY(s.screen.click("startAtLoginSwitch"));
        QVERIFY(std::filesystem::exists(s.entry));
        QVERIFY(s.switchOn());
        QAction* entry = s.menuEntry();
        QVERIFY(entry);
        QCOMPARE(entry->text(), QStringLiteral("Start Larkspan at login"));
        QVERIFY(entry->isCheckable() && entry->isChecked());
        for (ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
            s.screen.setColorScheme(scheme);
            QVERIFY(s.screen.saveScreenshot("startAtLogin", "on"));
        }

        // Removed by hand: the menu reads it as off as it opens, and the page follows.
        std::filesystem::remove(s.entry);
        QVERIFY(!s.menuEntry()->isChecked());
        QVERIFY(!s.switchOn());
        s.menuEntry()->trigger();
        QVERIFY(std::filesystem::exists(s.entry));
        QVERIFY(s.switchOn());
        QVERIFY(s.notifier.sent.empty());
    }

    void refusedChangeLeavesTheSwitchOffWithTheReason() {
        Setup s;
        std::filesystem::create_directories(s.dir / "config");
        std::ofstream(s.dir / "config/autostart") << "a file where the folder goes";
        QVERIFY(s.open());
        QVERIFY(s.screen.click("startAtLoginSwitch"));
        QVERIFY(!s.switchOn());
        QVERIFY(s.screen.find("startAtLoginProblem")->isVisible());
        QVERIFY(s.screen.text("startAtLoginProblem").contains(QStringLiteral("config/autostart")));
        QCOMPARE(s.notifier.sent.size(), size_t(1));
        QVERIFY(!s.menuEntry()->isChecked());
        for (ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
            s.screen.setColorScheme(scheme);
            QVERIFY(s.screen.saveScreenshot("startAtLogin", "refused"));
        }
    }
};

QTEST_MAIN(StartAtLoginSwitchTest)
#include "StartAtLoginSwitchTest.moc"
