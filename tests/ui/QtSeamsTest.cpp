// The Qt implementations of the seams, on a real event loop.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <vector>

#include "Platform/Qt/QtMainQueue.h"
#include "Platform/Qt/QtRepeatingTimer.h"
#include "Platform/Qt/SettingsStore.h"

using namespace larkspan;

class QtSeamsTest : public QObject {
    Q_OBJECT
private slots:
    void mainQueueRunsLaterInPostingOrder() {
        QtMainQueue queue(qApp);
        std::vector<int> order;
        for (int i = 0; i < 5; ++i)
            queue.post([&order, i] { order.push_back(i); });
        QVERIFY(order.empty());  // never inline
        QTRY_COMPARE(order.size(), std::size_t(5));
        QCOMPARE(order, (std::vector<int>{0, 1, 2, 3, 4}));
    }

    void timerRepeatsUntilItsHandleIsDestroyed() {
        QtRepeatingTimer timers;
        int ticks = 0;
        auto handle = timers.schedule(0.01, [&] { ++ticks; });
        QTRY_VERIFY(ticks >= 3);
        handle.reset();
        const int atCancel = ticks;
        QTest::qWait(50);
        QCOMPARE(ticks, atCancel);
    }

    void settingsRoundTripAndSurviveAReopen() {
        QTemporaryDir dir;
        const QString path = dir.filePath("Larkspan/Larkspan.conf");
        {
            SettingsStore store(path);
            store.setInteger("pomo_focus", 25);
            store.setReal("lastAccessibilityPromptDate", 1700000000.5);
            store.setText("pomo_date", "2026-11-23");
            store.setText("odd", "it's \"quoted\" \xF0\x9F\x8D\x85");
        }
        SettingsStore reopened(path);
        QCOMPARE(reopened.integer("pomo_focus"), std::optional<std::int64_t>(25));
        QCOMPARE(reopened.real("lastAccessibilityPromptDate"), std::optional<double>(1700000000.5));
        QCOMPARE(reopened.text("pomo_date"), std::optional<std::string>("2026-11-23"));
        QCOMPARE(reopened.text("odd"), std::optional<std::string>("it's \"quoted\" \xF0\x9F\x8D\x85"));
        // Text that is no number reads as absent, as does a missing key.
        QCOMPARE(reopened.integer("pomo_date"), std::optional<std::int64_t>());
        QCOMPARE(reopened.real("pomo_date"), std::optional<double>());
        QCOMPARE(reopened.integer("missing"), std::optional<std::int64_t>());
        QCOMPARE(reopened.text("missing"), std::optional<std::string>());
    }

    void unwritableLocationKeepsValuesForTheRun() {
        // A file where the folder should be: unwritable even for root, unlike permission bits.
        QTemporaryDir dir;
        QFile blocker(dir.filePath("Larkspan"));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        SettingsStore store(dir.filePath("Larkspan/Larkspan.conf"));
        store.setInteger("pomo_cycle", 3);
        store.setInteger("pomo_cycle", 4);
        QCOMPARE(store.integer("pomo_cycle"), std::optional<std::int64_t>(4));
        QVERIFY(!QFile::exists(dir.filePath("Larkspan/Larkspan.conf")));
    }
};

QTEST_GUILESS_MAIN(QtSeamsTest)
#include "QtSeamsTest.moc"
