// The Qt implementations of the seams and the process's own plumbing, on a real event loop: the main
// queue, the timer, the settings file, a screen's background loads and the single instance.
#include <QCoreApplication>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <future>
#include <optional>
#include <vector>

#include "Platform/Qt/QtMainQueue.h"
#include "Platform/Qt/QtRepeatingTimer.h"
#include "Platform/Qt/SettingsStore.h"
#include "Platform/Qt/SingleInstance.h"
#include "ui/BackgroundLoad.h"

using namespace larkspan;

class QtSeamsTest : public QObject {
    Q_OBJECT
private slots:
    void mainQueueRunsLaterInPostingOrderAndTimersStopWithTheirHandle() {
        QtMainQueue queue(qApp);
        std::vector<int> order;
        for (int i = 0; i < 5; ++i)
            queue.post([&order, i] { order.push_back(i); });
        QVERIFY(order.empty());  // never inline
        QTRY_COMPARE(order, (std::vector<int>{0, 1, 2, 3, 4}));

        QtRepeatingTimer timers;
        int ticks = 0;
        auto handle = timers.schedule(0.01, [&] { ++ticks; });
        QTRY_VERIFY(ticks >= 3);
        handle.reset();
        const int atCancel = ticks;
        QTest::qWait(50);
        QCOMPARE(ticks, atCancel);
    }

    void settingsSurviveAReopenAndAnUnwritableLocation() {
        QTemporaryDir dir;
        const QString path = dir.filePath("Larkspan/Larkspan.conf");
        {
            SettingsStore store(path);
            store.setInteger("pomo_focus", 25);
            store.setReal("lastAccessibilityPromptDate", 1700000000.5);
            store.setText("odd", "it's \"quoted\" \xF0\x9F\x8D\x85");
        }
        SettingsStore reopened(path);
        QCOMPARE(reopened.integer("pomo_focus"), std::optional<std::int64_t>(25));
        QCOMPARE(reopened.real("lastAccessibilityPromptDate"), std::optional<double>(1700000000.5));
        QCOMPARE(reopened.text("odd"), std::optional<std::string>("it's \"quoted\" \xF0\x9F\x8D\x85"));
        // Text that is no number reads as absent.
        QCOMPARE(reopened.integer("odd"), std::optional<std::int64_t>());

        // A file where the folder should be: unwritable even for root, unlike permission bits.
        QFile blocker(dir.filePath("Blocked"));
        QVERIFY(blocker.open(QIODevice::WriteOnly));
        blocker.close();
        SettingsStore store(dir.filePath("Blocked/Larkspan.conf"));
        store.setInteger("pomo_cycle", 3);
        store.setInteger("pomo_cycle", 4);
        QCOMPARE(store.integer("pomo_cycle"), std::optional<std::int64_t>(4));
        QVERIFY(!QFile::exists(dir.filePath("Blocked/Larkspan.conf")));
    }

    // Only the newest result reaches the screen, and a loader that goes waits for its running load
    // instead of leaving it to read a store that may be gone.
    void anOvertakenLoadIsDroppedAndAGoneLoaderDeliversNothing() {
        std::atomic<int> ran = 0;
        std::vector<int> shown;
        {
            BackgroundLoad<int> load;
            std::promise<void> release;
            std::shared_future<void> released = release.get_future().share();
            load.start(
                [&] {
                    released.wait();
                    return ++ran, 1;
                },
                [&](int day) { shown.push_back(day); });
            // While the first runs, the second is queued and the third replaces it.
            load.start([&] { return ++ran, 2; }, [&](int day) { shown.push_back(day); });
            load.start([&] { return ++ran, 3; }, [&](int day) { shown.push_back(day); });
            release.set_value();
            load.wait();
            QCOMPARE(ran.load(), 2);
            QCOMPARE(shown, std::vector<int>{3});
            load.start(
                [&] {
                    QThread::msleep(50);
                    return ++ran, 4;
                },
                [&](int day) { shown.push_back(day); });
        }
        QCOMPARE(ran.load(), 3);
        QCoreApplication::processEvents();
        QCOMPARE(shown, std::vector<int>{3});
    }

    // A second launch finds the first, asks it to show itself, and does not take over; once the first
    // is gone, the lock is free again.
    void secondLaunchActivatesTheFirst() {
        QTemporaryDir dir;
        SingleInstance lone(dir.path());
        QVERIFY(!lone.notifyRunningInstance());
        {
            SingleInstance first(dir.path());
            QVERIFY(first.claim());
            QSignalSpy activated(&first, &SingleInstance::activationRequested);
            SingleInstance second(dir.path());
            QVERIFY(!second.claim());
            QVERIFY(second.notifyRunningInstance());
            QTRY_COMPARE(activated.count(), 1);
        }
        SingleInstance next(dir.path());
        QVERIFY(next.claim());
    }
};

QTEST_GUILESS_MAIN(QtSeamsTest)
#include "QtSeamsTest.moc"
