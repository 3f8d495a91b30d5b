// The dashboard window over a real store in a temporary folder: the sidebar follows the tracker's
// session and pending count, the review button opens the review screen, and the one window is
// reused with its state and remembers where the user left it.
#include <QSettings>
#include <QSystemTrayIcon>
#include <QTest>

#include "ActivityBuilder.h"
#include "App/ui/DashboardWindow.h"
#include "App/ui/QmlModule.h"
#include "App/ui/QtAppPresenter.h"
#include "DashboardRig.h"
#include "QuickScreen.h"

using namespace larkspan;
using larkspan::test::ActivityBuilder;

namespace {

// A morning of tracking: closed rows, two of them waiting for a category (one too short to count).
struct Tracker : test::DashboardRig {
    explicit Tracker(int pending) {
        const Date t0 = clock.now() - 3 * 3600;
        db.insertActivity(ActivityBuilder(-1, t0, 1500)
                              .app("Code", "com.microsoft.VSCode")
                              .title("Parser.cpp")
                              .category(1));
        db.insertActivity(ActivityBuilder(-1, t0 + 1500, 600)
                              .app("Firefox", "org.mozilla.firefox")
                              .domain("github.com")
                              .category(1));
        db.insertActivity(ActivityBuilder::away(-1, t0 + 2100, 900));
        for (int i = 0; i < pending; ++i)
            db.insertActivity(ActivityBuilder(-1, t0 + 3000 + i * 200, 120)
                                  .app("Zqx", "org.example.Zqx")
                                  .category(21)
                                  .pending(0.3));
        db.insertActivity(ActivityBuilder(-1, t0 + 4000, 12).app("Blip").category(21).pending(0.3));
        manager->refreshApprovalCount();
        mainQueue.drain();
    }

    void track(const char* app, const char* bundleID, const char* title) {
        RawActivity sample;
        sample.appName = app;
        sample.bundleID = bundleID;
        sample.windowTitle = title;
        manager->process(sample);
        mainQueue.drain();
    }
};

QColor pixelAt(QuickScreen& screen, const QString& objectName, QPointF inside) {
    const QQuickItem* item = screen.find(objectName);
    const QPoint at = item->mapToScene(inside).toPoint();
    return screen.grab().pixelColor(at);
}

bool near(const QColor& a, const QColor& b) {
    return qAbs(a.red() - b.red()) < 12 && qAbs(a.green() - b.green()) < 12 && qAbs(a.blue() - b.blue()) < 12;
}

QColor over(const QColor& top, double alpha, const QColor& below) {
    auto mix = [alpha](int t, int b) { return qRound(t * alpha + b * (1 - alpha)); };
    return QColor(mix(top.red(), below.red()), mix(top.green(), below.green()),
                  mix(top.blue(), below.blue()));
}

QQuickView* shownDashboard() {
    QQuickView* found = nullptr;
    int count = 0;
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        if (window->title() == QLatin1String("Larkspan")) {
            ++count;
            found = qobject_cast<QQuickView*>(window);
        }
    }
    return count == 1 ? found : nullptr;
}

}  // namespace

class DashboardViewTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        // The presenter keeps the geometry in the user's settings file: keep it in the test's folder.
        qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString((configDir_.path() / "config").string()));
    }

    void sidebarShowsTheLiveSessionAndTheReviewButton() {
        Tracker tracker(3);
        tracker.track("Code", "com.microsoft.VSCode", "DashboardController.cpp \u2014 larkspan");
        DashboardController& controller = tracker.dashboard;
        controller.loadCategories();
        QuickScreen screen;
        QVERIFY(screen.load("DashboardView", tracker.viewProperties(), {1100, 740}));

        QCOMPARE(screen.text("sidebarTitle"), QStringLiteral("Larkspan"));
        QVERIFY(screen.find("liveCard")->isVisible());
        QCOMPARE(screen.text("liveIcon"), QString::fromStdString(Category::seeded()[0].icon));
        QCOMPARE(screen.text("liveStatus"), QStringLiteral("Live \u00B7 Coding"));
        QCOMPARE(screen.text("liveTitle"), QStringLiteral("DashboardController.cpp \u2014 larkspan"));
        QCOMPARE(screen.find("liveDot")->property("color").value<QColor>(),
                 QColor(QString::fromStdString(Category::seeded()[0].colorHex)));
        // Three rows wait; the twelve-second one is too short to count.
        QCOMPARE(screen.text("reviewTitle"), QStringLiteral("Review Activities"));
        QCOMPARE(screen.text("reviewDetail"), QStringLiteral("3 need categorizing"));
        QVERIFY(screen.find("dateText"));  // the timeline's screen

        for (ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
            screen.setColorScheme(scheme);
            const QColor sidebar = schemePalette(scheme).color(QPalette::Window);
            QVERIFY(
                near(pixelAt(screen, "liveCard", {4, 20}), over(controller.liveCard().color, 0.12, sidebar)));
            QVERIFY(near(pixelAt(screen, "reviewButton", {4, 20}), over(QColor(255, 149, 0), 0.1, sidebar)));
            QVERIFY(screen.saveScreenshot("dashboard", "session-and-pending"));
        }

        // A new session redraws the card.
        tracker.clock.advance(60);
        tracker.track("kitty", "net.kovidgoyal.kitty", "~/src/larkspan");
        QCOMPARE(screen.text("liveStatus"), QStringLiteral("Live \u00B7 Terminal"));

        // Tabs switch by click, and a built tab shows its screen.
        QVERIFY(screen.click("tab-Analytics"));
        QCOMPARE(controller.selectedTab(), QStringLiteral("Analytics"));
        QCOMPARE(screen.text("analyticsTitle"), QStringLiteral("Analytics"));
    }

    void withoutSessionTheCardAndTheButtonAreAbsent() {
        Tracker tracker(0);
        DashboardController& controller = tracker.dashboard;
        controller.loadCategories();
        QuickScreen screen;
        QVERIFY(screen.load("DashboardView", tracker.viewProperties(), {1100, 740}));
        QVERIFY(!screen.find("liveCard")->isVisible());
        QVERIFY(!screen.find("reviewButton")->isVisible());
        QVERIFY(!screen.find("reviewDivider")->isVisible());
        // The list moves up under the title.
        const QQuickItem* title = screen.find("sidebarTitle");
        QVERIFY(screen.find("tabList")->y() < title->y() + title->height() + 20);
        for (ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
            screen.setColorScheme(scheme);
            QVERIFY(screen.saveScreenshot("dashboard", "without-session"));
        }
    }

    void sessionOutsideTheCategoriesShowsAGreyStopwatch() {
        Tracker tracker(0);
        tracker.track("Code", "com.microsoft.VSCode", "main.cpp");
        // Before the window has read the categories, every category is unknown.
        DashboardController& controller = tracker.dashboard;
        QuickScreen screen;
        QVERIFY(screen.load("DashboardView", tracker.viewProperties(), {1100, 740}));
        QCOMPARE(screen.text("liveIcon"), QStringLiteral("\u23F1"));
        QCOMPARE(screen.text("liveStatus"), QStringLiteral("Live \u00B7 Tracking"));
        QCOMPARE(screen.find("liveDot")->property("color").value<QColor>(), QColor("#8E8E93"));
        controller.loadCategories();
        QCOMPARE(screen.text("liveStatus"), QStringLiteral("Live \u00B7 Coding"));
    }

    void reviewButtonShowsFromOneAndOpensTheReviewScreen() {
        Tracker tracker(0);
        DashboardController& controller = tracker.dashboard;
        QuickScreen screen;
        QVERIFY(screen.load("DashboardView", tracker.viewProperties(), {1100, 740}));
        QVERIFY(!screen.find("reviewButton")->isVisible());
        QVERIFY(!screen.click("reviewButton"));
        // The published count, not the store's, decides: it may run ahead of the rows.
        tracker.manager->pendingApprovalCount.set(1);
        QVERIFY(screen.find("reviewButton")->isVisible());
        QCOMPARE(screen.text("reviewDetail"), QStringLiteral("1 need categorizing"));

        screen.grab();  // lays the sidebar out anew
        QVERIFY(screen.press("reviewButton"));
        QCOMPARE(controller.selectedTab(), QStringLiteral("Review"));
        QCOMPARE(screen.text("reviewHeading"), QStringLiteral("Review Activities"));
        QVERIFY(screen.find("reviewButton")->property("selected").toBool());
        QVERIFY(!screen.find("tab-Timeline")->property("selected").toBool());
        for (ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
            screen.setColorScheme(scheme);
            QVERIFY(near(pixelAt(screen, "reviewButton", {4, 20}), QColor(255, 149, 0)));
            QCOMPARE(screen.find("reviewTitle")->property("color").value<QColor>(), QColor(Qt::white));
            QVERIFY(screen.saveScreenshot("dashboard", "review-selected"));
        }

        // At 0 the button goes, and the review screen stays until another tab is chosen.
        tracker.manager->pendingApprovalCount.set(0);
        QVERIFY(!screen.find("reviewButton")->isVisible());
        QCOMPARE(screen.text("reviewHeading"), QStringLiteral("Review Activities"));
        // A calendar day opens the timeline on that day.
        controller.dayTapped(1'763'000'000);
        QVERIFY(screen.find("dateText"));
        QCOMPARE(controller.selectedDate(), 1'763'000'000.0);

        // The keyboard's way through the tab list: a ring on the focused tab, the arrows move it.
        QVERIFY(screen.focusByKeyboard("tab-Timeline"));
        QTest::keyClick(screen.window(), Qt::Key_Down);
        QVERIFY(screen.find("tab-Focus")->hasActiveFocus());
        QTest::keyClick(screen.window(), Qt::Key_Return);
        QCOMPARE(controller.selectedTab(), QStringLiteral("Focus"));
        QTest::keyClick(screen.window(), Qt::Key_Down);
        for (ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
            screen.setColorScheme(scheme);
            QVERIFY(screen.saveScreenshot("dashboard", "focus-ring"));
        }
    }

    void withoutTrayTheDashboardOpensAndIsReusedWithItsState() {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        Tracker tracker(2);
        tracker.track("Code", "com.microsoft.VSCode", "main.cpp");
        QtAppPresenter presenter;
        presenter.attach(tracker.db, *tracker.manager, tracker.pomodoro);

        // The offscreen platform has no tray, so the dashboard stands in at launch.
        QVERIFY(!QSystemTrayIcon::isSystemTrayAvailable());
        QVERIFY(!shownDashboard());
        presenter.openDashboardWithoutTray();
        QQuickView* window = shownDashboard();
        QVERIFY(window);
        QVERIFY(QTest::qWaitForWindowExposed(window));
        QCOMPARE(window->size(), DashboardWindow::defaultSize);
        QCOMPARE(window->minimumSize(), DashboardWindow::minimumSize);
        auto* controller = window->rootObject()->property("controller").value<DashboardController*>();
        QVERIFY(controller);
        // Coming on screen read the categories.
        QCOMPARE(controller->categories(), tracker.db.fetchCategories());
        QCOMPARE(controller->liveCard().status, QStringLiteral("Live \u00B7 Coding"));
        controller->setSelectedTab("Calendar");

        // Closing hides it; opening again shows the same window with the same tab.
        window->close();
        QVERIFY(!window->isVisible());
        presenter.openDashboard();
        QCOMPARE(shownDashboard(), window);
        QVERIFY(window->isVisible());
        QCOMPARE(controller->selectedTab(), QStringLiteral("Calendar"));
        // Asked for while shown, it is raised; the offscreen platform can only say it cannot.
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
        presenter.openDashboard();
        QCOMPARE(shownDashboard(), window);
        // The popover's pending banner asks for the same window on the review screen.
        QTest::ignoreMessage(QtWarningMsg, "This plugin does not support raise()");
        presenter.openReview();
        QCOMPARE(shownDashboard(), window);
        QCOMPARE(controller->selectedTab(), QStringLiteral("Review"));
    }

    void geometryIsKeptUnderDashboardAndRestored() {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        Tracker tracker(0);
        QQmlEngine engine;
        prepareQmlEngine(engine);
        const QString settings = QString::fromStdString((tracker.dir / "Larkspan.conf").string());
        const QRect moved(40, 30, 960, 640);
        {
            DashboardWindow dashboard(engine, tracker.services, settings);
            dashboard.open();
            QVERIFY(QTest::qWaitForWindowExposed(&dashboard.window()));
            dashboard.window().setGeometry(moved);
            QTRY_COMPARE(dashboard.window().geometry(), moved);
            dashboard.window().close();
            QCOMPARE(QSettings(settings, QSettings::IniFormat).value("Dashboard").toRect(), moved);
        }
        QCOMPARE(QSettings(settings, QSettings::IniFormat).value("Dashboard").toRect(), moved);
        {
            DashboardWindow dashboard(engine, tracker.services, settings);
            QCOMPARE(dashboard.window().geometry(), moved);
        }
        // A place no screen shows any more gives the default size, centred where it can be seen.
        QSettings(settings, QSettings::IniFormat).setValue("Dashboard", QRect(-9000, -9000, 500, 400));
        {
            DashboardWindow dashboard(engine, tracker.services, settings);
            QCOMPARE(dashboard.window().size(), DashboardWindow::defaultSize);
            QVERIFY(QGuiApplication::primaryScreen()->availableGeometry().contains(
                dashboard.window().position()));
        }
    }

private:
    test::TempDir configDir_;
};

QTEST_MAIN(DashboardViewTest)
#include "DashboardViewTest.moc"
