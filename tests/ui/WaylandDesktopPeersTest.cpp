// What a Wayland session's D-Bus peers give Larkspan, against fakes on a private session bus: the
// GNOME and KWin window sources, input silence from org.freedesktop.ScreenSaver, and the prompts as
// notifications with actions, whose server is asked only when one is due; and the KWin script itself
// in a JavaScript engine against a fake KWin workspace.
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QFile>
#include <QJSEngine>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include "ManualMainQueue.h"
#include "Platform/Qt/GnomeExtensionInstaller.h"
#include "Platform/Qt/GnomeShellSource.h"
#include "Platform/Qt/IdleTimePoll.h"
#include "Platform/Qt/KWinSource.h"
#include "Platform/Qt/LazyNotificationPrompts.h"
#include "Platform/Qt/NotificationPrompts.h"
#include "RecordingNotifier.h"
#include "RecordingPresenter.h"

using namespace larkspan;

// The connection that owns the fake screen saver and notification server.
const QString kPeer = QStringLiteral("peer");

// A Shell extension that hangs.
class FakeExtension : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.larkspan.Larkspan.FocusedWindow")
public slots:
    // Never answers.
    QString Get(const QDBusMessage& call) {
        call.setDelayedReply(true);
        return {};
    }
};

class FakeMutter : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gnome.Mutter.IdleMonitor")
public slots:
    qulonglong GetIdletime() { return 130'000; }
};

class FakeKWinScripting : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.kwin.Scripting")
public:
    QStringList loaded;
    int starts = 0;
public slots:
    bool unloadScript(const QString&) { return false; }
    int loadScript(const QString& path, const QString&) {
        loaded << path;
        return 0;
    }
    void start() { ++starts; }
};

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
    QList<uint> closed;
    uint next = 0;
    int asked = 0;
public slots:
    QStringList GetCapabilities() {
        ++asked;
        return capabilities;
    }
    uint Notify(const QString&, uint replaces, const QString&, const QString&, const QString&,
                const QStringList&, const QVariantMap&, int) {
        return replaces ? replaces : ++next;
    }
    void CloseNotification(uint id) { closed << id; }
};

std::shared_ptr<ReportedWorkspace> makeWorkspace(std::shared_ptr<Notifier> notifier) {
    return std::make_shared<ReportedWorkspace>(
        std::make_shared<AppIdentity>(std::make_shared<DesktopEntries>(std::vector<std::filesystem::path>{},
                                                                       std::vector<std::string>{})),
        std::make_shared<test::ManualMainQueue>(), std::move(notifier), DesktopNotice{},
        DesktopNotice{"lost", "", ""});
}

class WaylandDesktopPeersTest : public QObject {
    Q_OBJECT
    QProcess daemon_;
    QString address_;
    FakeExtension extension_;
    FakeMutter mutter_;
    FakeScreenSaver screenSaver_;
    FakeNotificationServer server_;

    QDBusConnection connect(const QString& name) { return QDBusConnection::connectToBus(address_, name); }
    void emitChanged(QDBusConnection& peer, const QString& title) {
        auto signal = QDBusMessage::createSignal("/org/larkspan/Larkspan/FocusedWindow",
                                                 "org.larkspan.Larkspan.FocusedWindow", "Changed");
        signal << QString("org.gnome.Nautilus") << QString("Nautilus") << title << 77u;
        QVERIFY(peer.send(signal));
    }

private slots:
    void initTestCase() {
        daemon_.start("dbus-daemon", {"--session", "--nofork", "--print-address=1"});
        QVERIFY(daemon_.waitForReadyRead(5000));
        address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
        // The session bus of everything of ours that does not get a connection handed in.
        qputenv("DBUS_SESSION_BUS_ADDRESS", address_.toUtf8());
        auto bus = connect(kPeer);
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

    void followsTheExtensionAsItComesAndGoes() {
        auto notifier = std::make_shared<test::RecordingNotifier>();
        auto workspace = makeWorkspace(notifier);
        auto peer = connect("extension");
        QVERIFY(peer.registerObject("/org/larkspan/Larkspan/FocusedWindow", &extension_,
                                    QDBusConnection::ExportAllSlots));
        QVERIFY(peer.registerObject("/org/gnome/Mutter/IdleMonitor/Core", &mutter_,
                                    QDBusConnection::ExportAllSlots));
        QVERIFY(peer.registerService("org.gnome.Mutter.IdleMonitor"));

        GnomeShellSource source(workspace, connect("larkspan"));
        QVERIFY(!workspace->canReadWindows());
        QTRY_VERIFY(workspace->secondsSinceLastInput() >= 130);

        // An extension that never answers holds nothing up; its signals still count.
        QVERIFY(peer.registerService(GnomeShellSource::kExtensionService));
        QTest::qWait(200);
        QVERIFY(!workspace->canReadWindows());
        emitChanged(peer, "Trash");
        QTRY_VERIFY(workspace->canReadWindows());
        QCOMPARE(workspace->focusedWindowTitle(77), std::optional<std::string>("Trash"));
        QVERIFY(peer.unregisterService(GnomeShellSource::kExtensionService));
        QTRY_VERIFY(!workspace->canReadWindows());

        // The real extension, in gjs over a fake display.
        QProcess shell;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("DBUS_SESSION_BUS_ADDRESS", address_);
        shell.setProcessEnvironment(environment);
        shell.start("gjs", {LARKSPAN_GNOME_HARNESS, LARKSPAN_GNOME_EXTENSION_DIR});
        QVERIFY(shell.waitForStarted());
        shell.write("focus Downloads\n");
        QTRY_COMPARE(workspace->focusedWindowTitle(77), std::optional<std::string>("Downloads"));
        shell.write("title " + QByteArray(100'000, 'x') + "\n");
        QTRY_COMPARE(workspace->focusedWindowTitle(77)->size(), 100'000u);
        shell.write("none\n");
        QTRY_VERIFY(!workspace->frontmostApplication());
        shell.closeWriteChannel();
        QVERIFY(shell.waitForFinished());
        QTRY_VERIFY(!workspace->canReadWindows());
        QCOMPARE(notifier->sent.size(), 1u);
    }

    // GNOME 45 loads extensions as ES modules, 43 and 44 through `imports`.
    void installsTheExtensionInTheFlavourOfTheShell() {
        QTemporaryDir dir;
        for (int shell : {43, 46}) {
            const auto folder = installGnomeExtension(dir.path().toStdString(), shell);
            QFile entry(QString::fromStdString((folder / "extension.js").string()));
            QFile service(QString::fromStdString((folder / "focusedWindow.js").string()));
            QVERIFY(entry.open(QIODevice::ReadOnly) && service.open(QIODevice::ReadOnly));
            QCOMPARE(entry.readAll().contains("export default class"), shell >= 45);
            QCOMPARE(service.readAll().contains("export {FocusedWindowService"), shell >= 45);
            QVERIFY(QFile::exists(QString::fromStdString((folder / "metadata.json").string())));
        }
    }

    void loadsTheKWinScriptAgainAfterARestartAndTakesItsCalls() {
        auto notifier = std::make_shared<test::RecordingNotifier>();
        auto workspace = makeWorkspace(notifier);
        FakeKWinScripting scripting;
        auto kwin = connect("kwin");
        QVERIFY(kwin.registerObject("/Scripting", &scripting, QDBusConnection::ExportAllSlots));
        QVERIFY(kwin.registerService("org.kde.KWin"));
        QTemporaryDir dir;
        const auto path = dir.filePath("larkspan-kwin.js");
        KWinSource source(workspace, connect("larkspan-kwin"), path);
        QTRY_COMPARE(scripting.starts, 1);
        QCOMPARE(scripting.loaded, QStringList{path});
        QVERIFY(QFile(path).size() > 0);

        auto activated = QDBusMessage::createMethodCall(KWinSource::kService, KWinSource::kPath,
                                                        "org.larkspan.Larkspan.KWin", "Activated");
        activated << QString("org.kde.dolphin") << QString("org.kde.dolphin")
                  << QString::fromUtf8("Home \u2014 Dolphin") << 31;
        QVERIFY(kwin.send(activated));
        QTRY_COMPARE(workspace->focusedWindowTitle(31), std::optional<std::string>("Home \u2014 Dolphin"));

        QVERIFY(kwin.unregisterService("org.kde.KWin"));
        QTRY_VERIFY(!workspace->canReadWindows());
        QVERIFY(kwin.registerService("org.kde.KWin"));
        QTRY_COMPARE(scripting.starts, 2);
        QCOMPARE(notifier->sent.size(), 1u);
    }

    void promptsBecomeNotificationsThatResolveLikeTheCards() {
        server_.capabilities = {"body", "actions"};
        server_.next = 0;
        auto peer = QDBusConnection(kPeer);
        test::RecordingPresenter windows;
        NotificationPrompts prompts(windows, connect("larkspan-prompts"));
        QTRY_VERIFY(prompts.usesNotifications());
        auto signal = [&](const char* name, uint id, const QVariant& value) {
            auto message = QDBusMessage::createSignal("/org/freedesktop/Notifications",
                                                      "org.freedesktop.Notifications", name);
            message << id << value;
            QVERIFY(peer.send(message));
        };

        ActivityRecord record;
        record.appName = "Mystery";
        std::vector<std::optional<std::int64_t>> answers;
        prompts.showApprovalPopup(record, Category::seeded(), {2, 99, 1},
                                  [&](auto id) { answers.push_back(id); });
        QTRY_COMPARE(server_.next, 1u);
        signal("ActionInvoked", 1, QString("category-2"));
        QTRY_COMPARE(answers.size(), 1u);
        QCOMPARE(answers[0], std::optional<std::int64_t>(2));
        // Dismissing the notification is "Skip".
        prompts.showApprovalPopup(record, Category::seeded(), {2}, [&](auto id) { answers.push_back(id); });
        signal("NotificationClosed", 1, 2u);
        QTRY_COMPARE(answers.size(), 2u);
        QCOMPARE(answers[1], std::optional<std::int64_t>());

        std::vector<std::int64_t> idleAnswers;
        prompts.showReturnFromIdlePopup(720, [&](std::int64_t id) { idleAnswers.push_back(id); });
        QTRY_COMPARE(server_.next, 2u);
        signal("ActionInvoked", 2, QString("option-2"));
        QTRY_COMPARE(idleAnswers, std::vector<std::int64_t>{6});
        prompts.closeIdlePopup();
        QTRY_VERIFY(server_.closed.contains(2u));
        QVERIFY(windows.approvals.empty() && windows.idlePrompts.empty());
    }

    // The script as KWin runs it: activations and caption changes of the active window call back,
    // a window left behind no longer does.
    void kwinScriptReportsActivationsAndCaptions() {
        QFile script(":/kwin-script/larkspan-kwin.js");
        QVERIFY(script.open(QIODevice::ReadOnly));
        QJSEngine engine;
        const auto fake = engine.evaluate(R"(
            var calls = [];
            function callDBus() { calls.push(Array.prototype.slice.call(arguments, 3).join("|")); }
            function Signal() { this.slots = []; }
            Signal.prototype.connect = function (f) { this.slots.push(f); };
            Signal.prototype.disconnect = function (f) { this.slots = this.slots.filter(s => s !== f); };
            Signal.prototype.fire = function (x) { this.slots.forEach(s => s(x)); };
            function Window(cls, caption, pid) {
                this.resourceClass = cls; this.desktopFileName = cls; this.caption = caption; this.pid = pid;
                this.captionChanged = new Signal();
            }
            var first = new Window("konsole", "~", 5), second = new Window("kate", "a.txt", 6);
            var workspace = { windowActivated: new Signal(), activeWindow: first };
        )");
        QVERIFY2(!fake.isError(), qPrintable(fake.toString()));
        const auto loaded = engine.evaluate(QString::fromUtf8(script.readAll()), "larkspan-kwin.js");
        QVERIFY2(!loaded.isError(), qPrintable(loaded.toString()));
        const auto result = engine.evaluate(R"(
            first.caption = "~/src"; first.captionChanged.fire();
            workspace.windowActivated.fire(second);
            first.captionChanged.fire();
            workspace.windowActivated.fire(null);
            calls.join(";");
        )");
        QCOMPARE(result.toString(), QString("Activated|konsole|konsole|~|5;Activated|konsole|konsole|~/src|5;"
                                            "Activated|kate|kate|a.txt|6;Activated||||0"));
    }

    // Milliseconds, as KDE answers; an answer of another type leaves the last figure (an hour).
    void screenSaverIdleTime() {
        for (const auto& [answer, idle] : {std::pair(QVariant(90'000u), 90.0), std::pair(QVariant(500u), 0.0),
                                           std::pair(QVariant("idle"), 3600.0)}) {
            screenSaver_.answer = answer;
            auto workspace = makeWorkspace(nullptr);
            workspace->inputSilentSince(std::chrono::steady_clock::now() - std::chrono::hours(1));
            IdleTimePoll poll(workspace, IdleTimePoll::kScreenSaver);
            poll.startOnSessionBus();
            QTest::qWait(IdleTimePoll::kPollMs + IdleTimePoll::kCallTimeoutMs / 2);
            const double seen = workspace->secondsSinceLastInput();
            QVERIFY2(seen >= idle && seen < idle + 5, qPrintable(QString::number(seen)));
        }
    }

    // Nothing goes to the server before the first prompt; that one waits for its answer and goes out
    // as a notification when the server has actions, else as the window.
    void promptsAskTheServerOnlyWhenOneIsDue() {
        for (const bool actions : {true, false}) {
            server_.capabilities = actions ? QStringList{"body", "actions"} : QStringList{"body"};
            server_.asked = 0;
            server_.next = 0;
            test::RecordingPresenter windows;
            LazyNotificationPrompts prompts(windows);
            QTest::qWait(300);
            QCOMPARE(server_.asked, 0);

            prompts.showReturnFromIdlePopup(720, [](std::int64_t) {});
            ActivityRecord record;
            record.appName = "Mystery";
            prompts.showApprovalPopup(record, Category::seeded(), {2}, [](auto) {});
            QTRY_COMPARE(static_cast<int>(server_.next) + static_cast<int>(windows.calls.size()), 2);
            QCOMPARE(server_.asked, 1);
            const std::vector<std::string> shownAsWindows{"showApproval", "showIdle"};
            QCOMPARE(windows.calls, actions ? std::vector<std::string>{} : shownAsWindows);
        }
    }
};

QTEST_GUILESS_MAIN(WaylandDesktopPeersTest)
#include "WaylandDesktopPeersTest.moc"
