// The analytics tab over a real store holding ninety days of generated history: every range, the day
// bar and its keys, an empty period, and screenshots of each in light and dark.
#include <QTest>

#include <random>

#include "ActivityBuilder.h"
#include "DashboardRig.h"
#include "Platform/LocalDay.h"
#include "QuickScreen.h"
#include "ScopedTimeZone.h"
#include "Ui/QtConversion.h"

using namespace larkspan;
using larkspan::test::ActivityBuilder;

namespace {

struct Use {
    const char* app;
    const char* domain;  // null outside a browser
    std::int64_t category;
    int minutes;  // the longest visit; each lasts a random part of it
};

// What a person does at the desk, and on a weekend.
constexpr Use kWork[] = {
    {"Code", nullptr, 1, 50},
    {"Code", nullptr, 1, 40},
    {"kitty", nullptr, 2, 15},
    {"Firefox", "github.com", 1, 20},
    {"Firefox", "docs.python.org", 4, 25},
    {"Slack", nullptr, 6, 12},
    {"Thunderbird", nullptr, 5, 10},
    {"Firefox", "reddit.com", 17, 8},
    {"Spotify", nullptr, 12, 6},
    {"Obsidian", nullptr, 3, 30},
    // A long right-to-left name with an emoji, which must elide inside its column.
    {"\u0645\u062D\u0631\u0631 \u0627\u0644\u0646\u0635\u0648\u0635 \U0001F4DD Extraordinarily long editor "
     "name",
     "a-very-long-subdomain.of-an-example-documentation-site.example.org", 10, 20},
};
constexpr Use kWeekend[] = {
    {"Firefox", "youtube.com", 16, 40},
    {"Steam", nullptr, 19, 60},
    {"Firefox", "reddit.com", 17, 20},
    {"Calibre", nullptr, 10, 45},
};

// Ninety days before the rig's morning, weekdays full and weekends light, pomodoros on most
// workdays, and an early start today.
struct History : test::DashboardRig {
    test::ScopedTimeZone zone{"Europe/Berlin"};

    History() {
        std::mt19937 random(18);
        for (int back = 90; back >= 0; --back) {
            const Date midnight = startOfLocalDay(clock.now() - back * 86400.0);
            const int weekday = localDateTime(midnight).date().dayOfWeek();
            const bool weekend = weekday >= 6;
            Date at = midnight + (back == 0 ? 7 * 3600 : (weekend ? 11 : 9) * 3600 + random() % 1800);
            const Date end = back == 0 ? clock.now() - 600 : midnight + (weekend ? 15 : 18) * 3600;
            while (at < end) {
                const Use& use =
                    weekend ? kWeekend[random() % std::size(kWeekend)] : kWork[random() % std::size(kWork)];
                const auto seconds = static_cast<std::int64_t>(60 + random() % (use.minutes * 60));
                ActivityBuilder row(-1, at, seconds);
                row.app(use.app).category(use.category).title("Window");
                if (use.domain)
                    row.domain(use.domain);
                db.insertActivity(row);
                at += static_cast<Date>(seconds + random() % 240);
                if (random() % 9 == 0) {
                    db.insertActivity(ActivityBuilder::away(-1, at, 900));
                    at += 900;
                }
            }
            for (int pomodoro = weekend ? 0 : static_cast<int>(random() % 6); pomodoro > 0; --pomodoro)
                db.incrementDailyPomoCount(midnight + 12 * 3600);
        }
    }
};

}  // namespace

class AnalyticsViewTest : public QObject {
    Q_OBJECT
private slots:
    void everyRangeOverNinetyDays() {
        History history;
        AnalyticsController& controller = *history.screens.analytics();
        QuickScreen screen;
        QVERIFY(
            screen.load("AnalyticsView", {{"controller", QVariant::fromValue(&controller)}}, {1000, 1500}));
        controller.waitForLoad();

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
            QVERIFY(!screen.find("dayBar")->isVisible());
            QVERIFY(screen.find("topWebsites")->isVisible());
            QVERIFY(screen.find("sessionCount")->isVisible() || c.bars == 1);
            QVERIFY(screen.accessibleName("dayBar0").contains(QStringLiteral("productive")) || !c.dailyChart);
            for (ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
                screen.setColorScheme(scheme);
                QVERIFY(
                    screen.saveScreenshot("analytics", QString::fromLatin1(c.range).remove(' ').toLower()));
            }
        }
        // Every tile says its figure; the pomodoros of the whole period add up.
        QVERIFY(screen.accessibleName("tile0").startsWith(QStringLiteral("Total Tracked: ")));
        QVERIFY(screen.text("tileValue2").startsWith(QStringLiteral("\U0001F345 ")));
    }

    void theDayBarStepsByKeyAndKeepsItsDay() {
        History history;
        AnalyticsController& controller = *history.screens.analytics();
        QuickScreen screen;
        QVERIFY(
            screen.load("AnalyticsView", {{"controller", QVariant::fromValue(&controller)}}, {1000, 1100}));
        QVERIFY(screen.press("range-Day"));
        controller.waitForLoad();
        QVERIFY(screen.find("dayBar")->isVisible());
        QVERIFY(!screen.find("nextDay")->isEnabled() && !screen.find("todayButton")->isEnabled());
        QCOMPARE(screen.text("hourlyHeatmapSubtitle"), QStringLiteral("Productive minutes per hour"));
        const QString today = screen.text("dayText");

        QTest::keyClick(screen.window(), Qt::Key_Left);
        controller.waitForLoad();
        const QString yesterday = screen.text("dayText");
        QVERIFY(yesterday != today);
        QVERIFY(screen.find("nextDay")->isEnabled());
        QVERIFY(screen.accessibleName("hourBar3").endsWith(QStringLiteral(" productive minutes")));
        // Another range and back: the same day.
        QVERIFY(screen.press("range-Week"));
        QVERIFY(screen.press("range-Day"));
        controller.waitForLoad();
        QCOMPARE(screen.text("dayText"), yesterday);
        for (ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
            screen.setColorScheme(scheme);
            QVERIFY(screen.saveScreenshot("analytics", "yesterday"));
        }
        QTest::keyClick(screen.window(), Qt::Key_Home);
        controller.waitForLoad();
        QCOMPARE(screen.text("dayText"), today);
        QTest::keyClick(screen.window(), Qt::Key_Right);  // no future day
        QCOMPARE(screen.text("dayText"), today);

        // A day before the history: every empty text, and the category card spans the row.
        controller.stepDay(-120);
        controller.waitForLoad();
        QStringList tiles;
        for (int i = 0; i < 5; ++i)
            tiles << screen.text(QStringLiteral("tileValue%1").arg(i));
        QCOMPARE(tiles, (QStringList{"0m", "0m \u00B7 0%", "\U0001F345 0", "0", "0"}));
        QVERIFY(screen.find("patternEmpty")->isVisible() && screen.find("sessionsEmpty")->isVisible());
        QVERIFY(!screen.find("topWebsites")->isVisible());
        screen.grab();  // lays the row out anew
        QCOMPARE(screen.find("categoryBreakdown")->width(), screen.find("appBreakdown")->width());
        for (ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
            screen.setColorScheme(scheme);
            QVERIFY(screen.saveScreenshot("analytics", "empty-day"));
        }
    }
};

QTEST_MAIN(AnalyticsViewTest)
#include "AnalyticsViewTest.moc"
