// The Settings page's browser section: per browser, whether its extension reported in the last
// minute, following the bridge as time passes while the view is shown.
#include <QSignalSpy>
#include <QTest>

#include "App/ui/BrowserBridgeStatusModel.h"
#include "FakeBrowserBridge.h"
#include "ManualClock.h"
#include "QuickScreen.h"

using namespace larkspan;

class BrowserBridgeStatusTest : public QObject {
    Q_OBJECT

private slots:
    void showsWhichBrowsersReportedInTheLastMinute() {
        auto bridge = std::make_shared<test::FakeBrowserBridge>();
        test::ManualClock clock{10'000};
        bridge->setReports({{11, "chromium", false, "https://github.com/", "GitHub", 9'988},
                            {12, "firefox-esr", true, "", "", 9'930},
                            {13, "xterm", false, "a", "b", 9'999}});
        BrowserBridgeStatusModel model(bridge, clock);
        BrowserBridgeStatusModel::share(&model);
        QuickScreen screen;
        QVERIFY(screen.loadText("import Larkspan\nBrowserBridgeStatus { width: 460 }", {}, {480, 250}));

        auto detail = [&](const char* browser) {
            const auto* row = screen.find(QStringLiteral("browser-") + browser);
            return row ? row->property("detail").toString() : QString();
        };
        QCOMPARE(detail("Chromium"), QStringLiteral("Reported a tab 12 seconds ago"));
        QCOMPARE(detail("Firefox"), QStringLiteral("No tab reported in the last minute"));
        QCOMPARE(detail("Vivaldi"), QStringLiteral("No tab reported in the last minute"));
        QVERIFY(screen.saveScreenshots(QStringLiteral("BrowserBridgeStatus"), QStringLiteral("chromium")));

        // Only the rows that changed are announced.
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        clock.advance(50);
        model.refresh();
        QCOMPARE(changed.count(), 1);
        QCOMPARE(detail("Chromium"), QStringLiteral("No tab reported in the last minute"));

        // The bridge is read on a timer only while the view is on screen.
        QVERIFY(model.isRefreshing());
        screen.window()->hide();
        QVERIFY(!model.isRefreshing());
        screen.window()->show();
        QVERIFY(model.isRefreshing());
        BrowserBridgeStatusModel::share(nullptr);
    }
};

QTEST_MAIN(BrowserBridgeStatusTest)
#include "BrowserBridgeStatusTest.moc"
