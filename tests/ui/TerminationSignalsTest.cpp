// SIGTERM and SIGINT arrive as a signal on the event loop instead of killing the process.
#include <QCoreApplication>
#include <QSignalSpy>
#include <QTest>

#include <signal.h>

#include "Platform/Qt/TerminationSignals.h"

using namespace larkspan;

class TerminationSignalsTest : public QObject {
    Q_OBJECT
private slots:
    void bothSignalsReachTheEventLoopInOrder() {
        TerminationSignals signals_;
        QSignalSpy requested(&signals_, &TerminationSignals::terminationRequested);
        ::raise(SIGTERM);
        ::raise(SIGINT);
        QTRY_COMPARE(requested.count(), 2);
        QCOMPARE(requested.at(0).at(0).toInt(), SIGTERM);
        QCOMPARE(requested.at(1).at(0).toInt(), SIGINT);
    }
};

QTEST_GUILESS_MAIN(TerminationSignalsTest)
#include "TerminationSignalsTest.moc"
