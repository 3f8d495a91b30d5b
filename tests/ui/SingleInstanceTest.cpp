// A second launch finds the first, asks it to show itself, and does not take over.
#include <QCoreApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "Platform/Qt/SingleInstance.h"

using namespace larkspan;

class SingleInstanceTest : public QObject {
    Q_OBJECT
private slots:
    void secondLaunchActivatesTheFirst() {
        QTemporaryDir dir;
        SingleInstance first(dir.path());
        QVERIFY(first.claim());
        QSignalSpy activated(&first, &SingleInstance::activationRequested);

        SingleInstance second(dir.path());
        QVERIFY(!second.claim());
        QVERIFY(second.notifyRunningInstance());
        QTRY_COMPARE(activated.count(), 1);
    }

    void nobodyListeningMeansNoAnswer() {
        QTemporaryDir dir;
        SingleInstance lone(dir.path());
        QVERIFY(!lone.notifyRunningInstance());
    }

    void lockIsFreeAgainOnceTheFirstIsGone() {
        QTemporaryDir dir;
        {
            SingleInstance first(dir.path());
            QVERIFY(first.claim());
        }
        SingleInstance next(dir.path());
        QVERIFY(next.claim());
    }
};

QTEST_GUILESS_MAIN(SingleInstanceTest)
#include "SingleInstanceTest.moc"
