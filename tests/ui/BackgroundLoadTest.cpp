// A screen's loads: only the newest result reaches the screen, and a loader that goes waits for its
// running load instead of leaving it to read a store that may be gone.
#include <QTest>

#include <atomic>
#include <future>
#include <optional>

#include "ui/BackgroundLoad.h"

using namespace larkspan;

class BackgroundLoadTest : public QObject {
    Q_OBJECT
private slots:
    void anOvertakenLoadIsDroppedAndAQueuedOneNeverRuns() {
        BackgroundLoad<int> load;
        std::promise<void> release;
        std::shared_future<void> released = release.get_future().share();
        std::atomic<int> ran = 0;
        std::vector<int> shown;
        load.start(
            [&] {
                released.wait();
                ++ran;
                return 1;
            },
            [&](int day) { shown.push_back(day); });
        // While the first runs, the second is queued and the third replaces it.
        load.start([&] { return ++ran, 2; }, [&](int day) { shown.push_back(day); });
        load.start([&] { return ++ran, 3; }, [&](int day) { shown.push_back(day); });
        release.set_value();
        load.wait();
        QCOMPARE(ran.load(), 2);
        QCOMPARE(shown, std::vector<int>{3});
    }

    void goingAwayWaitsForTheRunningLoadAndDeliversNothing() {
        std::atomic<bool> finished = false;
        std::optional<int> shown;
        {
            BackgroundLoad<int> load;
            load.start(
                [&] {
                    QThread::msleep(50);
                    finished = true;
                    return 7;
                },
                [&](int value) { shown = value; });
        }
        QVERIFY(finished);
        QCoreApplication::processEvents();
        QVERIFY(!shown);
    }
};

QTEST_GUILESS_MAIN(BackgroundLoadTest)
#include "BackgroundLoadTest.moc"
