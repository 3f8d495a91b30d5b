// The tray's menu and its tooltip follow the status title.
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include "App/ui/TrayIcon.h"

using namespace larkspan;

class TrayIconTest : public QObject {
    Q_OBJECT
private slots:
    void menuActionsReachTheirSignals() {
        TrayIcon tray;
        StatusTitle title;
        title.icon = "\u23F1";
        title.pendingCount = 2;
        title.segments = {{"\u23F1 Starting\u2026", 12, TitleWeight::medium, TitleColor::label, false}};
        tray.update(title);
        int asked = 0;
        tray.setMenuItems([&asked] {
            ++asked;
            return std::vector<MenuItem>{{"Open Dashboard", MenuItem::Action::openDashboard},
                                         {"Review 2 Pending\u2026", MenuItem::Action::openDashboard},
                                         {"", MenuItem::Action::separator},
                                         {"Quit Larkspan", MenuItem::Action::quit}};
        });
        QSignalSpy dashboard(&tray, &TrayIcon::openDashboardRequested);
        QSignalSpy quit(&tray, &TrayIcon::quitRequested);
        // The entries are asked for again each time the menu opens.
        emit const_cast<QMenu&>(tray.menu()).aboutToShow();
        QCOMPARE(asked, 2);
        const auto actions = tray.menu().actions();
        QCOMPARE(actions.size(), 4);
        QCOMPARE(actions[1]->text(), QString::fromUtf8("Review 2 Pending\u2026"));
        QVERIFY(actions[2]->isSeparator());
        // A tray menu shows no shortcut, since none would work.
        for (const QAction* action : actions)
            QVERIFY(action->shortcut().isEmpty());
        actions[0]->trigger();
        actions[1]->trigger();
        actions[3]->trigger();
        QCOMPARE(dashboard.count(), 2);
        QCOMPARE(quit.count(), 1);
    }
};

QTEST_MAIN(TrayIconTest)
#include "TrayIconTest.moc"
