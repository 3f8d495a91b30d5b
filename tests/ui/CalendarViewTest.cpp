// The calendar tab over a temporary store holding 90 days of generated history: the present month
// with its figures, a past month, a month without data, moving by keyboard, and handing a day to the
// timeline.
#include "DashboardRig.h"
#include "Platform/LocalDay.h"
#include "YearOfData.h"

using namespace larkspan;

namespace {

QString cellText(QuickScreen& screen, const QString& cell, const QString& part) {
    return findItem(screen.find(cell), part)->property("text").toString();
}

}  // namespace

class CalendarViewTest : public QObject {
    Q_OBJECT
private slots:
    void monthsOfHistory() {
        test::ScopedTimeZone zone{"Europe/Berlin"};
        test::DashboardScreen rig;  // Sunday 23 November 2025, 09:00
        bench::writeHistory(rig.db, rig.clock.now() - 86400, {90, 600, 3});
        rig.db.insertActivity(
            ActivityRecord::manual(rig.clock.now() - 7200, rig.clock.now() - 300, 1, "Review", {}));
        rig.dashboard.setSelectedTab(QStringLiteral("Calendar"));
        CalendarController& calendar = *rig.screens.calendar();
        QuickScreen& screen = rig.screen;
        QVERIFY(rig.show("CalendarView", calendar, {900, 780}));

        // The present month: today ringed with its hours, the summary and the bar filled.
        QCOMPARE(screen.text("monthTitle"), QStringLiteral("November 2025"));
        QCOMPARE(cellText(screen, "day-23", "hours"), QStringLiteral("2h"));
        QVERIFY(screen.accessibleName("day-23").startsWith(
            QStringLiteral("Sunday 23 November: 1h 55m, 100 % productive")));
        QVERIFY(screen.find("categoryBar")->isVisible());
        QVERIFY(screen.saveScreenshots("calendar", "present-month"));

        // A past day opens on the timeline.
        QVERIFY(screen.press("day-10"));
        QCOMPARE(rig.dashboard.selectedTab(), QStringLiteral("Timeline"));
        QCOMPARE(rig.dashboard.selectedDate(), *localMidnight(2025, 11, 10));

        // → reaches next month only, Home comes back, ← goes into the past.
        screen.root()->forceActiveFocus();
        rig.keys(calendar, {Qt::Key_Right, Qt::Key_Right});
        QCOMPARE(screen.text("monthTitle"), QStringLiteral("December 2025"));
        QVERIFY(!screen.find("nextMonth")->isEnabled());
        rig.keys(calendar, {Qt::Key_Home, Qt::Key_Left, Qt::Key_Left});
        QCOMPARE(screen.text("monthTitle"), QStringLiteral("September 2025"));
        QVERIFY(screen.saveScreenshots("calendar", "past-month"));

        // Before the history began: zeros, no bar.
        rig.keys(calendar, {Qt::Key_Left, Qt::Key_Left, Qt::Key_Left, Qt::Key_Left});
        QCOMPARE(screen.text("monthTitle"), QStringLiteral("May 2025"));
        QCOMPARE(screen.accessibleName("stat-Productive"), QStringLiteral("Productive: 0%"));
        QVERIFY(!screen.find("categoryBar")->isVisible());
        QVERIFY(screen.saveScreenshots("calendar", "empty-month"));
    }
};

QTEST_MAIN(CalendarViewTest)
#include "CalendarViewTest.moc"
