// The dashboard window over a real store in a temporary folder: the sidebar follows the tracker's
// session and pending count, the review button opens the review screen, and the one window is
// reused with its state and remembers where the user left it.
#include <QSettings>

#include "App/ui/DashboardWindow.h"
#include "App/ui/QmlModule.h"
#include "App/ui/QtAppPresenter.h"
#include "DashboardRig.h"

using namespace larkspan;
using larkspan::test::ActivityBuilder;

namespace {

// A morning of tracking: closed rows, and `pending` rows waiting for a category.
struct Tracker : test::DashboardRig {
    const Date t0 = clock.now() - 3 * 3600;

    explicit Tracker(int pending) {
        db.insertActivity(ActivityBuilder(-1, t0, 1500).app("Code").title("Parser.cpp").category(1));
        db.insertActivity(ActivityBuilder::away(-1, t0 + 1500, 900));
        addPending(pending);
    }

    void addPending(int pending) {
        for (int i = 0; i < pending; ++i)
            db.insertActivity(
                ActivityBuilder(-1, t0 + 3000 + i * 200, 120).app("Zqx").category(21).pending(0.3));
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

QQuickView* shownDashboard() {
    QList<QQuickView*> found;
    for (QWindow* window : QGuiApplication::topLevelWindows())
        if (window->title() == QLatin1String("Larkspan"))
            found << qobject_cast<QQuickView*>(window);
    return found.size() == 1 ? found.front() : nullptr;
}

}  // namespace

class DashboardViewTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() {
        // The presenter keeps the geometry in the user's settings file: keep it in the test's folder.
        qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString((configDir_.path() / "config").string()));
    }

    // The sidebar follows the tracker's session and pending count; tabs switch by screen reader and
    // keyboard (and by mouse in the end-to-end test).
    void sidebarFollowsTheTrackerAndSwitchesTabs() {
        Tracker tracker(0);
        DashboardController& controller = tracker.dashboard;
        controller.loadCategories();
        QuickScreen screen;
        QVERIFY(screen.load("DashboardView", tracker.viewProperties(), {1100, 740}));
        QVERIFY(!screen.visible("liveCard") && !screen.visible("reviewButton") &&
                !screen.visible("reviewDivider"));
        QVERIFY(screen.saveScreenshots("dashboard", "without-session"));

        tracker.track("Code", "com.microsoft.VSCode", "DashboardController.cpp \u2014 larkspan");
        tracker.addPending(3);
        QCOMPARE(screen.text("liveStatus"), controller.liveCard().status);
        QCOMPARE(screen.text("liveTitle"), QStringLiteral("DashboardController.cpp \u2014 larkspan"));
        QVERIFY(screen.visible("reviewButton"));
        QVERIFY(screen.saveScreenshots("dashboard", "session-and-pending"));

        screen.grab();  // lays the sidebar out anew
        QVERIFY(screen.press("reviewButton"));
        QCOMPARE(controller.selectedTab(), QStringLiteral("Review"));
        QVERIFY(screen.visible("reviewHeading"));
        QVERIFY(screen.saveScreenshots("dashboard", "review-selected"));
        // At 0 the button goes, and the review screen stays until another tab is chosen.
        tracker.manager->pendingApprovalCount.set(0);
        QVERIFY(!screen.visible("reviewButton"));
        QVERIFY(screen.visible("reviewHeading"));

        // The keyboard's way through the tab list: a ring on the focused tab, the arrows move it.
        QVERIFY(screen.focusByKeyboard("tab-Timeline"));
        QTest::keyClick(screen.window(), Qt::Key_Down);
        QVERIFY(screen.find("tab-Focus")->hasActiveFocus());
        QTest::keyClick(screen.window(), Qt::Key_Return);
        QCOMPARE(controller.selectedTab(), QStringLiteral("Focus"));
        QTest::keyClick(screen.window(), Qt::Key_Down);
        QVERIFY(screen.saveScreenshots("dashboard", "focus-ring"));
    }

    void withoutTrayTheDashboardOpensAndIsReusedWithItsState() {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        Tracker tracker(2);
        tracker.track("Code", "com.microsoft.VSCode", "main.cpp");
        QtAppPresenter presenter;
        presenter.attach(tracker.db, *tracker.manager, tracker.pomodoro);

        presenter.openDashboardWithoutTray();
        QQuickView* window = shownDashboard();
        QVERIFY(window);
        QVERIFY(QTest::qWaitForWindowExposed(window));
        QCOMPARE(window->size(), DashboardWindow::defaultSize);
        auto* controller = window->rootObject()->property("controller").value<DashboardController*>();
        QVERIFY(controller);
        // Coming on screen read the categories.
        QCOMPARE(controller->categories(), tracker.db.fetchCategories());
        controller->setSelectedTab("Calendar");

        // Closing hides it; opening again shows the same window with the same tab.
        window->close();
        presenter.openDashboard();
        QCOMPARE(shownDashboard(), window);
        QVERIFY(window->isVisible());
        QCOMPARE(controller->selectedTab(), QStringLiteral("Calendar"));
        // The popover's pending banner asks for the same window, shown and raised, on the review
        // screen; the offscreen platform can only say it cannot raise it.
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
