// The tray icon: its menu reaches the signals; the painted icon at every common panel size, where the
// emoji fills it and the badge appears only when something waits, each state saved as a PNG; and
// "Start Larkspan at login" as the Settings page and the tray menu show it: both show the entry's
// presence, a change in one shows in the other, a file removed by hand reads as off, and a refused
// change leaves the switch off with the reason.
#include <QApplication>
#include <QDir>
#include <QSignalSpy>
#include <QTest>

#include <filesystem>
#include <fstream>

#include "App/ui/StartAtLoginController.h"
#include "App/ui/TrayIcon.h"
#include "App/ui/TrayIconPainter.h"
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
    int asked = 0;
    ~Setup() { StartAtLoginController::share(nullptr); }

    // The switch as the Settings page shows it and a tray menu, both over the one shared controller.
    bool open() {
        controller.setStartAtLogin(&startAtLogin, &notifier);
        StartAtLoginController::share(&controller);
        tray.setMenuItems([this] {
            ++asked;
            return std::vector<MenuItem>{{"Open Dashboard", MenuItem::Action::openDashboard},
                                         {"Review 2 Pending\u2026", MenuItem::Action::openDashboard},
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
        return actions.size() == 6 && actions[2]->isSeparator() && actions[4]->isSeparator() ? actions[3]
                                                                                             : nullptr;
    }
};

}  // namespace

class TrayIconTest : public QObject {
    Q_OBJECT
private slots:
    void drawsEachStateCrisplyAtEverySize() {
        const QString laptop = QString::fromUtf8("\xF0\x9F\x92\xBB");
        const std::pair<const char*, TrayIconContent> states[] = {
            {"plain", {laptop, 0, {}, false}},
            {"pending", {laptop, 3, {}, false}},
            {"many-pending", {laptop, 120, {}, false}},
            {"focus", {laptop, 0, QString::fromUtf8("\xF0\x9F\x8D\x85"), false}},
            {"break-paused-pending", {laptop, 7, QString::fromUtf8("\xE2\x98\x95"), true}}};
        const QString dir = QStringLiteral(LARKSPAN_SCREENSHOT_DIR);
        QDir().mkpath(dir);
        for (const auto& [name, content] : states) {
            for (int size : {16, 22, 24, 32}) {
                const QImage image = TrayIconPainter::paint(content, size);
                QCOMPARE(image.size(), QSize(size, size));
                // The emoji covers a good part of the icon: a font that fails to load leaves it empty.
                QVERIFY2(coveredPixels(image, image.rect()) > size * size / 4, name);
                const QRect topRight(size / 2, 0, size / 2, size / 2);
                QCOMPARE(coveredPixels(image, topRight, QColor(255, 149, 0)) > 0, content.pendingCount > 0);
                QVERIFY(TrayIconPainter::paint(content, size, 2.0)
                            .save(QStringLiteral("%1/tray-%2-%3@2x.png").arg(dir, name).arg(size)));
                QVERIFY(image.save(QStringLiteral("%1/tray-%2-%3.png").arg(dir, name).arg(size)));
            }
        }
    }

    void menuReachesItsSignalsAndBothShowTheEntrysPresence() {
        Setup s;
        QVERIFY(s.open());
        QSignalSpy dashboard(&s.tray, &TrayIcon::openDashboardRequested);
        QSignalSpy quit(&s.tray, &TrayIcon::quitRequested);
        QVERIFY(s.menuEntry());
        // The entries are asked for again each time the menu opens.
        QCOMPARE(s.asked, 3);
        const auto actions = s.tray.menu().actions();
        for (int i : {0, 1, 5})
            actions[i]->trigger();
        QCOMPARE(dashboard.count(), 2);
        QCOMPARE(quit.count(), 1);

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

QTEST_MAIN(TrayIconTest)
#include "TrayIconTest.moc"
