// The tray's menu and its tooltip follow the status title.
#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include "App/ui/TrayIcon.h"

using namespace larkspan;

class TrayIconTest : public QObject {
    Q_OBJECT
private slots:
    void menuShowsTheReviewEntryOnlyWithPendingActivities() {
        QCOMPARE(TrayIcon::menuTitles(0), (QStringList{"Open Dashboard", "", "Quit Larkspan"}));
        QCOMPARE(TrayIcon::menuTitles(3),
                 (QStringList{"Open Dashboard", QString::fromUtf8("Review 3 Pending\u2026"), "",
                              "Quit Larkspan"}));
    }

    void menuActionsReachTheirSignals() {
        TrayIcon tray;
        StatusTitle title;
        title.icon = "\u23F1";
        title.pendingCount = 2;
        title.segments = {{"\u23F1 Starting\u2026", 12, TitleWeight::medium, TitleColor::label, false}};
        tray.update(title);
        QSignalSpy dashboard(&tray, &TrayIcon::openDashboardRequested);
        QSignalSpy quit(&tray, &TrayIcon::quitRequested);
        emit const_cast<QMenu&>(tray.menu()).aboutToShow();
        const auto actions = tray.menu().actions();
        QCOMPARE(actions.size(), 4);
        QCOMPARE(actions[1]->text(), QString::fromUtf8("Review 2 Pending\u2026"));
        QVERIFY(actions[2]->isSeparator());
        actions[0]->trigger();
        actions[1]->trigger();
        actions[3]->trigger();
        QCOMPARE(dashboard.count(), 2);
        QCOMPARE(quit.count(), 1);
    }
};

QTEST_MAIN(TrayIconTest)
#include "TrayIconTest.moc"
