// The settings tab over a real store: the category list with its badges, both sheets (adding, a
// refused name, editing, Escape), hostile names, a failed write, and the retention buttons; and its
// browser section: per browser, whether its extension reported in the last minute, following the
// bridge as time passes while the view is shown.
#include "App/ui/BrowserBridgeStatusModel.h"
#include "DashboardRig.h"
#include "FakeBrowserBridge.h"

using namespace larkspan;

namespace {

struct Settings : test::DashboardScreen {
    SettingsController& controller = *screens.settings();

    Settings() { QVERIFY(show("SettingsView", controller, {820, 900})); }
    bool sheetOpen(const char* name) const {
        auto* popup = screen.root()->findChild<QObject*>(name);
        return popup && popup->property("opened").toBool();
    }
    QString lastName() { return QString::fromStdString(db.fetchCategories().back().name); }
};

}  // namespace

class SettingsViewTest : public QObject {
    Q_OBJECT
private slots:
    void listsCategoriesWithBadgesAndNoDeleteForOther() {
        Settings s;
        QCOMPARE(s.controller.categories()->count(), 21);
        QVERIFY(!s.screen.find("categoryRow-20")->property("deletable").toBool());
        QVERIFY(s.screen.saveScreenshots("settings", "list"));
        QVERIFY(s.screen.press("deleteThreeMonths"));
        s.controller.waitForCompaction();
        QVERIFY(!s.controller.compacting());
    }

    void addingByKeyboardAndARefusedNameKeepsTheSheet() {
        Settings s;
        QVERIFY(s.screen.press("addCategory"));
        QTRY_VERIFY(s.sheetOpen("newCategorySheet"));
        QVERIFY(!s.controller.canAdd());
        for (const char key : std::string("Tom's"))
            QTest::keyClick(s.screen.window(), key);
        QVERIFY(s.screen.saveScreenshots("settings", "new-sheet"));
        QTest::keyClick(s.screen.window(), Qt::Key_Return);
        QTRY_VERIFY(!s.sheetOpen("newCategorySheet"));
        QCOMPARE(s.lastName(), QStringLiteral("Tom's"));
        QCOMPARE(s.controller.categories()->count(), 22);

        // A name in use: nothing happens, the sheet stays open with what was typed.
        s.controller.setNewName("Coding");
        QVERIFY(s.screen.press("addCategory"));
        QTRY_VERIFY(s.sheetOpen("newCategorySheet"));
        QTest::keyClick(s.screen.window(), Qt::Key_Return);
        QVERIFY(s.sheetOpen("newCategorySheet"));
        QCOMPARE(s.controller.categories()->count(), 22);
        QTest::keyClick(s.screen.window(), Qt::Key_Escape);
        QTRY_VERIFY(!s.sheetOpen("newCategorySheet"));
    }

    void editingHostileNamesAndAFailedWrite() {
        Settings s;
        const QString hostile = QStringLiteral("'); DROP TABLE categories; --");
        QVERIFY(s.screen.press("edit"));
        QTRY_VERIFY(s.sheetOpen("editCategorySheet"));
        QVERIFY(s.screen.saveScreenshots("settings", "edit-sheet"));
        QVERIFY(s.controller.save(category_id::coding, hostile, QStringLiteral("\U0001F600"), 1));
        QVERIFY(s.controller.save(category_id::writing, QString(10'000, QLatin1Char('n')), "x", 0));
        QCOMPARE(QString::fromStdString(s.db.fetchCategories().front().name), hostile);
        QCOMPARE(s.screen.text("categoryName"), hostile);
        QVERIFY(s.screen.saveScreenshots("settings", "hostile-names"));

        // A read-only store: the sheet stays open, the list, the rows and the activities stay.
        const auto old = s.db.insertActivity(test::ActivityBuilder(0, 0, 60).category(category_id::coding));
        s.db.exec("PRAGMA query_only=ON");
        QVERIFY(!s.controller.save(category_id::coding, QStringLiteral("Renamed"), "x", 0));
        QVERIFY(!s.controller.remove(category_id::coding));
        s.controller.deleteOlderThanOneYear();
        QVERIFY(!s.controller.compacting());
        QVERIFY(s.sheetOpen("editCategorySheet"));
        QTest::keyClick(s.screen.window(), Qt::Key_Escape);
        QTRY_VERIFY(!s.sheetOpen("editCategorySheet"));
        QCOMPARE(QString::fromStdString(s.db.fetchCategories().front().name), hostile);
        QCOMPARE(s.db.fetchActivity(old)->categoryID, category_id::coding);
        QCOMPARE(s.controller.categories()->count(), 21);
    }

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
        QVERIFY(screen.saveScreenshots(QStringLiteral("BrowserBridgeStatus"), QStringLiteral("chromium")));

        // The bridge is read on a timer only while the view is on screen.
        QVERIFY(model.isRefreshing());
        screen.window()->hide();
        QVERIFY(!model.isRefreshing());
        screen.window()->show();
        QVERIFY(model.isRefreshing());
        BrowserBridgeStatusModel::share(nullptr);
    }
};

QTEST_MAIN(SettingsViewTest)
#include "SettingsViewTest.moc"
