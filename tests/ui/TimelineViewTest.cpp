// The day screen over a temporary store holding a busy day: canvas and list, both panels, both
// sheets writing what was typed, the keyboard, an empty day with and without a filter, and a refused
// insert keeping the manual sheet open.
#include "DashboardRig.h"
#include "LocalInstant.h"

using namespace larkspan;
using test::ActivityBuilder;

namespace {

// 2025-11-22, the day before the rig's clock.
Date at(int hour, int minute, int second = 0) {
    return test::localInstant(2025, 11, 22, hour, minute, second);
}

struct InUtc {
    test::ScopedTimeZone zone{"UTC"};
};

struct BusyDay : InUtc, test::DashboardScreen {
    TimelineController& timeline = *screens.timeline();

    // Activities from 07:00: editor sessions stitched in pairs between chat visits, pages with long,
    // right-to-left and emoji titles, an away span, a pending one, an open one and one across
    // midnight. The crowded days are the benchmark's.
    void fill() {
        const std::string longTitle(10'000, 'x');
        const char* titles[] = {"Standup \u2014 larkspan",
                                "\u05E9\u05DC\u05D5\u05DD \u05E2\u05D5\u05DC\u05DD draft",
                                "Release notes \U0001F680\U0001F44D\U0001F3FD", "Invalid \xC3\x28 bytes"};
        Date t = at(7, 0);
        for (int i = 0; i < 24; ++i) {
            const std::int64_t seconds = 20 + (i * 37) % 400;
            ActivityBuilder a(-1, t, seconds);
            if (i == 19)
                a = ActivityBuilder::away(-1, t, 900);
            else if (i % 4 < 2)
                a.app("Code", "com.visualstudio.code").title("main.cpp").category(category_id::coding);
            else if (i % 4 == 2)
                a.app("Chat", "org.example.Chat")
                    .title(titles[i / 4 % 4])
                    .category(category_id::communication);
            else
                a.app("Firefox", "org.mozilla.firefox").title(i % 8 == 3 ? longTitle : "Docs").category(11);
            const ActivityRecord record = a;
            db.insertActivity(record);
            t = *record.endTime + 5;
        }
        db.insertActivity(ActivityBuilder(-1, at(13, 0), 200).app("Zqx").title("Mystery tool").pending(0.3));
        db.insertActivity(ActivityBuilder(-1, at(20, 0), 0).app("kitty", "net.kovidgoyal.kitty").open());
        db.insertActivity(ActivityBuilder(-1, at(23, 50), 1200).app("mpv").title("Late film").category(12));
        dashboard.setSelectedDate(at(12, 0));
    }

    bool load() { return show("TimelineView", timeline, {1100, 740}) && timeline.loaded(); }
};

QVariant rowValue(ValueListModelBase* model, int row, const char* role) {
    const int key = model->roleNames().key(role);
    return model->data(model->index(row), key);
}

// Scrolls the list so that row `index` has a delegate.
void showRow(QuickScreen& screen, int index) {
    QMetaObject::invokeMethod(screen.find("activityList"), "positionViewAtIndex", Q_ARG(int, index),
                              Q_ARG(int, 1));
}

int rowWhere(ValueListModelBase* model, const char* role, const QString& text) {
    for (int i = 0; i < model->rowCount(); ++i)
        if (rowValue(model, i, role).toString().contains(text))
            return i;
    return -1;
}

}  // namespace

class TimelineViewTest : public QObject {
    Q_OBJECT
private slots:
    void busyDayAsCanvasAndListWithItsSheetsAndKeys() {
        BusyDay day;
        day.fill();
        QVERIFY(day.load());
        QuickScreen& screen = day.screen;

        // The canvas opens at the hour before the present one (08:00), also on another day.
        auto* chapters = day.timeline.chapters();
        QTRY_COMPARE(screen.find("canvas")->property("contentY").toDouble(), 700.0);
        QVERIFY(!screen.find("nowLine")->isVisible());
        QVERIFY(screen.saveScreenshots("timeline", "canvas"));

        const int box = rowWhere(chapters, "isIdle", "false");
        const QString boxName = "chapter-" + rowValue(chapters, box, "chapterID").toString();
        QVERIFY(screen.press(boxName));
        QTRY_VERIFY(screen.find("detailPanel")->width() > 289);
        QVERIFY(day.timeline.panel().isChapter);
        QVERIFY(screen.saveScreenshots("timeline", "chapter-panel"));

        // Each mode keeps its own selection; the canvas scrolls to the present hour again when it
        // comes back into view...
        screen.find("canvas")->setProperty("contentY", 0.0);
        QVERIFY(screen.press("listMode"));
        QVERIFY(!day.timeline.panel().shown);
        QTRY_VERIFY(!screen.find("detailPanel")->isVisible());
        auto* rows = day.timeline.rows();
        const int merged = rowWhere(rows, "title", "main.cpp");
        QVERIFY(rowValue(rows, merged, "visits").toInt() > 1);
        QVERIFY(screen.saveScreenshots("timeline", "list"));

        showRow(screen, merged);
        QVERIFY(screen.press("row" + QString::number(merged)));
        QTRY_VERIFY(screen.find("detailPanel")->width() > 289);
        QVERIFY(screen.saveScreenshots("timeline", "block-panel"));
        QVERIFY(screen.press("timelineMode"));
        QTRY_COMPARE(screen.find("canvas")->property("contentY").toDouble(), 700.0);
        // ...and when its window is shown again.
        screen.find("canvas")->setProperty("contentY", 0.0);
        screen.window()->hide();
        screen.window()->show();
        QTRY_COMPARE(screen.find("canvas")->property("contentY").toDouble(), 700.0);
        QVERIFY(day.timeline.panel().isChapter);
        QVERIFY(screen.press("listMode"));

        // Deleting another row leaves the panel; Delete on the selected one removes its longest
        // visit alone and closes it.
        const int visits = rowValue(rows, merged, "visits").toInt();
        day.timeline.deleteRow(rowValue(rows, merged + 1, "blockID").toDouble());
        day.timeline.waitForLoad();
        QVERIFY(day.timeline.panel().shown);
        QTest::keyClick(screen.window(), Qt::Key_Delete);
        QVERIFY(!day.timeline.panel().shown);
        day.timeline.waitForLoad();
        QCOMPARE(rowValue(rows, rowWhere(rows, "title", "main.cpp"), "visits").toInt(), visits - 1);

        // ← a day back clears and loads an empty day; → comes back; Home goes to today.
        day.keys(day.timeline, {Qt::Key_Left});
        QCOMPARE(rows->rowCount(), 0);
        day.keys(day.timeline, {Qt::Key_Right});
        QVERIFY(rows->rowCount() > 5);
        day.keys(day.timeline, {Qt::Key_Home});
        QVERIFY(!day.timeline.header().canStepForward);

        // The sheets write what was typed, back on the busy day.
        day.keys(day.timeline, {Qt::Key_Left});
        const int pending = rowWhere(rows, "title", "Mystery");
        showRow(screen, pending);
        QVERIFY(screen.press("editRow" + QString::number(pending)));
        QTRY_VERIFY(screen.visible("editSheetSave"));
        QVERIFY(screen.saveScreenshots("timeline", "edit-sheet"));
        day.timeline.setSheetMinute(1, 0);  // 13:00, the start: nothing to save
        QVERIFY(!screen.find("editSheetSave")->isEnabled());
        QVERIFY(day.timeline.setSheetTimeText(1, "13:37"));
        QVERIFY(screen.press("editCategory-Research"));
        day.timeline.setSheetNotes("checked with Ana");
        QVERIFY(screen.press("editSheetSave"));
        QTRY_VERIFY(!screen.visible("editSheetSave"));
        const auto stored = day.db.fetchActivities(at(13, 0), at(13, 0));
        QCOMPARE(stored.size(), std::size_t{1});
        QCOMPARE(stored[0].durationSeconds, 37 * 60);
        QCOMPARE(stored[0].categoryID, std::optional<std::int64_t>(11));
        QCOMPARE(stored[0].notes, std::optional<std::string>("checked with Ana"));

        // A manual entry: a preset, the title typed.
        QVERIFY(screen.press("addManual"));
        QTRY_VERIFY(screen.visible("manualSheetSave"));
        QVERIFY(screen.saveScreenshots("timeline", "manual-sheet"));
        QVERIFY(screen.press("preset2"));
        day.timeline.setSheetTitle("Reading: Clean Code \U0001F4D6");
        // A read-only store refuses the row: the sheet stays with what was typed.
        day.db.exec("PRAGMA query_only = 1");
        QTest::keyClick(screen.window(), Qt::Key_Return);
        QVERIFY(screen.visible("manualSheetSave"));
        day.db.exec("PRAGMA query_only = 0");
        QVERIFY(screen.press("manualSheetSave"));
        QTRY_VERIFY(!screen.visible("manualSheetSave"));
    }

    void emptyDayWithAndWithoutFilter() {
        BusyDay day;
        day.db.insertActivity(ActivityBuilder(-1, day.clock.now() - 3600, 40).app("Code").category(1));
        QVERIFY(day.load());
        TimelineController& timeline = day.timeline;
        QuickScreen& screen = day.screen;
        QVERIFY(screen.find("nowLine")->isVisible());
        // Photographed once it has scrolled to the present hour.
        QTRY_COMPARE(screen.find("canvas")->property("contentY").toDouble(), 700.0);
        QVERIFY(screen.saveScreenshots("timeline", "today-canvas"));
        timeline.setListMode(true);
        QVERIFY(screen.press("filter->5m"));
        timeline.waitForLoad();
        QVERIFY(screen.find("emptyState")->isVisible() && screen.find("showAll")->isVisible());
        QVERIFY(screen.saveScreenshots("timeline", "empty-filtered"));
        QVERIFY(screen.press("showAll"));
        timeline.waitForLoad();
        QCOMPARE(timeline.rows()->rowCount(), 1);
        timeline.previousDay();
        timeline.waitForLoad();
        QVERIFY(screen.find("emptyState")->isVisible() && !screen.find("showAll")->isVisible());
        QVERIFY(screen.saveScreenshots("timeline", "empty"));
    }
};

QTEST_MAIN(TimelineViewTest)
#include "TimelineViewTest.moc"
