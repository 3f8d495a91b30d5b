// The analytics tab over a real store holding ninety days of generated history: every range, the day
// bar and its keys, an empty period, and screenshots of each in light and dark.
#include "DashboardRig.h"
#include "YearOfData.h"

using namespace larkspan;
using larkspan::test::ActivityBuilder;

namespace {

// Ninety days of a user's history before the rig's morning (09:00), and today one early visit of a
// page whose long right-to-left name with an emoji must elide inside its column.
struct History : test::DashboardScreen {
    test::ScopedTimeZone zone{"Europe/Berlin"};

    History() {
        bench::writeHistory(db, clock.now() - 86400, {90, 40, 18});
        db.insertActivity(ActivityBuilder(-1, clock.now() - 7200, 1200)
                              .app("\u0645\u062D\u0631\u0631 \u0627\u0644\u0646\u0635\u0648\u0635 \U0001F4DD "
                                   "Extraordinarily long "
                                   "editor name")
                              .domain("a-very-long-subdomain.of-an-example-documentation-site.example.org")
                              .category(10));
    }
    AnalyticsController& controller = *screens.analytics();
};

}  // namespace

class AnalyticsViewTest : public QObject {
    Q_OBJECT
private slots:
    void everyRangeOverNinetyDaysAndTheDayBar() {
        History h;
        QVERIFY(h.show("AnalyticsView", h.controller, {1000, 1500}));
        QuickScreen& screen = h.screen;
        AnalyticsController& controller = h.controller;

        // The rolling windows reach back 7, 30 and 90 days from 09:00, each touching one day more.
        struct Case {
            const char* range;
            const char* activeDays;
            int bars;
            bool dailyChart;
        };
        for (const Case& c : {Case{"Week", "8", 8, true}, Case{"Month", "31", 31, true},
                              Case{"3 Months", "91", 91, true}, Case{"Today", "1", 1, false}}) {
            QVERIFY(screen.press(QStringLiteral("range-") + c.range));
            controller.waitForLoad();
            QCOMPARE(screen.text("tileValue4"), QString::fromLatin1(c.activeDays));
            QCOMPARE(controller.days()->count(), c.bars);
            QCOMPARE(screen.find("dailyChart")->isVisible(), c.dailyChart);
            QVERIFY(screen.saveScreenshots("analytics", QString::fromLatin1(c.range).remove(' ').toLower()));
        }
        // The day bar steps by key.
        QVERIFY(screen.press("range-Day"));
        controller.waitForLoad();
        QVERIFY(screen.find("dayBar")->isVisible());
        QVERIFY(!screen.find("nextDay")->isEnabled() && !screen.find("todayButton")->isEnabled());
        const QString today = screen.text("dayText");

        h.keys(controller, {Qt::Key_Left});
        const QString yesterday = screen.text("dayText");
        QVERIFY(yesterday != today);
        QVERIFY(screen.saveScreenshots("analytics", "yesterday"));
        h.keys(controller, {Qt::Key_Home});
        QCOMPARE(screen.text("dayText"), today);

        // A day before the history: the empty texts, and the category card spans the row.
        controller.stepDay(-120);
        controller.waitForLoad();
        QCOMPARE(screen.text("tileValue4"), QStringLiteral("0"));
        QVERIFY(screen.find("patternEmpty")->isVisible() && screen.find("sessionsEmpty")->isVisible());
        QVERIFY(!screen.find("topWebsites")->isVisible());
        screen.grab();  // lays the row out anew
        QCOMPARE(screen.find("categoryBreakdown")->width(), screen.find("appBreakdown")->width());
        QVERIFY(screen.saveScreenshots("analytics", "empty-day"));
    }
};

QTEST_MAIN(AnalyticsViewTest)
#include "AnalyticsViewTest.moc"
