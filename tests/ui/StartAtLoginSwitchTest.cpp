// "Start Larkspan at login" as the dashboard's Settings page and the tray menu show it: both show the
// entry's presence, a change in one shows in the other, a file removed by hand reads as off, and a
// refused change leaves the switch off with the reason.
#include <QTest>

#include <filesystem>
#include <fstream>

#include "App/ui/StartAtLoginController.h"
#include "App/ui/TrayIcon.h"
#include "MemoryKeyValueStore.h"
#include "QuickScreen.h"
#include "RecordingNotifier.h"
#include "TempDir.h"

using namespace larkspan;

namespace {

struct Setup {
    test::TempDir dir;
    std::filesystem::path entry = dir / "config/autostart/org.larkspan.Larkspan.desktop";
    test::MemoryKeyValueStore settings;
    test::RecordingNotifier notifier;
    StartAtLogin startAtLogin{entry, "/usr/bin/larkspan", settings};
    StartAtLoginController controller{nullptr};
    QuickScreen screen;
    TrayIcon tray;
    ~Setup() { StartAtLoginController::share(nullptr); }

    // The switch as the Settings page shows it and a tray menu, both over the one shared controller.
    bool open() {
        controller.setStartAtLogin(&startAtLogin, &notifier);
        StartAtLoginController::share(&controller);
        tray.setMenuItems([] {
            return std::vector<MenuItem>{{"Open Dashboard", MenuItem::Action::openDashboard},
                                         {"", MenuItem::Action::separator},
                                         {"Quit Larkspan", MenuItem::Action::quit}};
        });
        tray.setStartAtLogin(&controller);
        return screen.load("StartAtLoginSwitch", {}, {480, 90});
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
        QVERIFY(!s.switchOn());
        QVERIFY(s.screen.click("startAtLoginSwitch"));
        QVERIFY(s.switchOn());
        QAction* entry = s.menuEntry();
        QVERIFY(entry && entry->isCheckable() && entry->isChecked());
        QVERIFY(s.screen.saveScreenshots("startAtLogin", "on"));

        // Removed by hand: the menu reads it as off as it opens, and the page follows.
        std::filesystem::remove(s.entry);
        QVERIFY(!s.menuEntry()->isChecked());
        QVERIFY(!s.switchOn());

        // Refused: the switch stays off, says why, and the reason also goes out as a notification.
        std::filesystem::remove_all(s.dir / "config");
        std::ofstream(s.dir / "config") << "a file where the folder goes";
        s.menuEntry()->trigger();
        QVERIFY(!s.switchOn());
        QVERIFY(s.screen.text("startAtLoginProblem").contains(QStringLiteral("config/autostart")));
        QCOMPARE(s.notifier.sent.size(), size_t(1));
        QVERIFY(s.screen.saveScreenshots("startAtLogin", "refused"));
    }
};

QTEST_MAIN(StartAtLoginSwitchTest)
#include "StartAtLoginSwitchTest.moc"
