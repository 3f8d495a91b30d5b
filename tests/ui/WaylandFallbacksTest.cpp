// What a Wayland session falls back on, against fakes on a private session bus: input silence from
// org.freedesktop.ScreenSaver, and prompts whose notification server is asked only when one is due.
#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>
#include <QTest>

#include "ManualMainQueue.h"
#include "Platform/Qt/IdleTimePoll.h"
#include "Platform/Qt/LazyNotificationPrompts.h"
#include "RecordingPresenter.h"

using namespace larkspan;

const QString kPeer = QStringLiteral("peer");

class FakeScreenSaver : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")
public:
    QVariant answer;
public slots:
    uint GetSessionIdleTime(const QDBusMessage& call) {
        call.setDelayedReply(true);
        QDBusConnection(kPeer).send(call.createReply(answer));
        return 0;
    }
};

class FakeNotificationServer : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    QStringList capabilities;
    int asked = 0;
    int notified = 0;
public slots:
    QStringList GetCapabilities() {
        ++asked;
        return capabilities;
    }
    uint Notify(const QString&, uint, const QString&, const QString&, const QString&, const QStringList&,
                const QVariantMap&, int) {
        return ++notified;
    }
    void CloseNotification(uint) {}
};

class WaylandFallbacksTest : public QObject {
    Q_OBJECT
    QProcess daemon_;
    FakeScreenSaver screenSaver_;
    FakeNotificationServer server_;

private slots:
    void initTestCase() {
        daemon_.start("dbus-daemon", {"--session", "--nofork", "--print-address=1"});
        QVERIFY(daemon_.waitForReadyRead(5000));
        // Everything of ours, and the fakes, on the private bus.
        const QByteArray address = daemon_.readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        auto bus = QDBusConnection::connectToBus(QString::fromUtf8(address), kPeer);
        QVERIFY(bus.registerObject("/org/freedesktop/ScreenSaver", &screenSaver_,
                                   QDBusConnection::ExportAllSlots));
        QVERIFY(
            bus.registerObject("/org/freedesktop/Notifications", &server_, QDBusConnection::ExportAllSlots));
        QVERIFY(bus.registerService("org.freedesktop.ScreenSaver"));
        QVERIFY(bus.registerService("org.freedesktop.Notifications"));
    }
    void cleanupTestCase() {
        daemon_.kill();
        daemon_.waitForFinished();
    }

    // Milliseconds, as KDE answers; an answer of another type leaves the last figure (an hour).
    void screenSaverIdleTime_data() {
        QTest::addColumn<QVariant>("answer");
        QTest::addColumn<double>("idle");
        QTest::newRow("ninety seconds") << QVariant(90'000u) << 90.0;
        QTest::newRow("half a second") << QVariant(500u) << 0.0;
        QTest::newRow("text") << QVariant("idle") << 3600.0;
    }
    void screenSaverIdleTime() {
        QFETCH(QVariant, answer);
        QFETCH(double, idle);
        screenSaver_.answer = answer;
        auto workspace = std::make_shared<ReportedWorkspace>(
            std::make_shared<AppIdentity>(std::make_shared<DesktopEntries>(
                std::vector<std::filesystem::path>{}, std::vector<std::string>{})),
            std::make_shared<test::ManualMainQueue>(), nullptr, DesktopNotice{}, DesktopNotice{});
        workspace->inputSilentSince(std::chrono::steady_clock::now() - std::chrono::hours(1));
        IdleTimePoll poll(workspace, IdleTimePoll::kScreenSaver);
        poll.startOnSessionBus();
        QTest::qWait(IdleTimePoll::kPollMs + IdleTimePoll::kCallTimeoutMs / 2);
        const double seen = workspace->secondsSinceLastInput();
        QVERIFY2(seen >= idle && seen < idle + 5, qPrintable(QString::number(seen)));
    }

    // Nothing goes to the server before the first prompt; that one waits for its answer and goes out
    // as a notification when the server has actions, else as the window.
    void promptsAskTheServerOnlyWhenOneIsDue() {
        for (const bool actions : {true, false}) {
            server_.capabilities = actions ? QStringList{"body", "actions"} : QStringList{"body"};
            server_.asked = server_.notified = 0;
            test::RecordingPresenter windows;
            LazyNotificationPrompts prompts(windows);
            QTest::qWait(300);
            QCOMPARE(server_.asked, 0);
            QVERIFY(!prompts.prompts());

            prompts.showReturnFromIdlePopup(720, [](std::int64_t) {});
            ActivityRecord record;
            record.appName = "Mystery";
            prompts.showApprovalPopup(record, Category::seeded(), {2}, [](auto) {});
            QTRY_COMPARE(server_.notified + static_cast<int>(windows.calls.size()), 2);
            QCOMPARE(server_.asked, 1);
            const std::vector<std::string> shownAsWindows{"showApproval", "showIdle"};
            QCOMPARE(windows.calls, actions ? std::vector<std::string>{} : shownAsWindows);
        }
    }
};

QTEST_GUILESS_MAIN(WaylandFallbacksTest)
#include "WaylandFallbacksTest.moc"
