// Larkspan's entry: one tracker per session, the store, the desktop behind the seams, the delegate
// that wires them, and the Qt event loop until the menu's Quit or SIGTERM/SIGINT.
#include <QtGui/qguiapplication_platform.h>
#include <QAccessible>
#include <QApplication>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string_view>

#include "App/AppDelegate.h"
#include "App/StartAtLogin.h"
#include "App/ui/BrowserBridgeStatusModel.h"
#include "App/ui/CommandLine.h"
#include "App/ui/QtAppPresenter.h"
#include "App/ui/StartAtLoginController.h"
#include "BrowserHost/BridgeProtocol.h"
#include "Data/Database.h"
#include "Platform/Linux/AppIdentity.h"
#include "Platform/Linux/BrowserBridgeServer.h"
#include "Platform/Linux/CanberraSoundPlayer.h"
#include "Platform/Linux/DesktopEntries.h"
#include "Platform/Linux/LinuxScriptRunner.h"
#include "Platform/Linux/SessionEnvironment.h"
#include "Platform/Linux/X11WindowHints.h"
#include "Platform/PrivateFiles.h"
#include "Platform/Qt/DBusNotifier.h"
#include "Platform/Qt/LazyNotificationPrompts.h"
#include "Platform/Qt/OrderlyExit.h"
#include "Platform/Qt/QtMainQueue.h"
#include "Platform/Qt/QtRepeatingTimer.h"
#include "Platform/Qt/SessionBus.h"
#include "Platform/Qt/SettingsStore.h"
#include "Platform/Qt/SingleInstance.h"
#include "Platform/Qt/TerminationSignals.h"
#include "Platform/Qt/WorkspaceFactory.h"
#include "Platform/SerialQueue.h"
#include "Platform/Subscription.h"

using namespace larkspan;

namespace {

constexpr int kFirstPictureWaitMs = 1000;

// Without any display Qt would abort with a long plugin message; say what is wrong instead.
bool hasDisplay() {
    auto set = [](const char* name) {
        const char* value = std::getenv(name);
        return value && *value;
    };
    return set("DISPLAY") || set("WAYLAND_DISPLAY") || set("QT_QPA_PLATFORM");
}

}  // namespace

int main(int argc, char** argv) {
    // The command line's options need no display; Qt's own options wait for the application.
    if (const auto status = answerCommandLine(argumentList(argc, argv), hasDisplay()))
        return *status;
    if (!hasDisplay()) {
        std::fputs("Larkspan needs a graphical session: neither DISPLAY nor WAYLAND_DISPLAY is set.\n",
                   stderr);
        return 1;
    }
    keepNewFilesPrivate();
    QApplication app(argc, argv);
    // The application name is the windows' WM_CLASS class, which the desktop entry's StartupWMClass names.
    QApplication::setApplicationName(QStringLiteral("Larkspan"));
    QApplication::setDesktopFileName(QString::fromUtf8(kApplicationID.data(), kApplicationID.size()));
    if (const auto status = answerCommandLine(QApplication::arguments(), false))
        return *status;
    QApplication::setQuitOnLastWindowClosed(false);
    TerminationSignals terminationSignals;
    QObject::connect(&terminationSignals, &TerminationSignals::terminationRequested, &app,
                     &QApplication::quit);

    SingleInstance instance;
    if (!instance.claim()) {
        if (!instance.notifyRunningInstance())
            std::fputs("Larkspan is already running but did not answer.\n", stderr);
        return 0;
    }

    Database& database = Database::shared();

    const auto session = SessionEnvironment::fromProcess();
    auto mainQueue = std::make_shared<QtMainQueue>(&app);
    auto notifier = std::make_shared<DBusNotifier>();
    auto entries = std::make_shared<DesktopEntries>(session.applicationDirs, session.localeKeys);
    const auto desktop =
        makeSessionWorkspace(session, std::make_shared<AppIdentity>(entries), mainQueue, notifier);
    Workspace& workspace = *desktop.workspace;
    SystemClock clock;
    auto browserBridge = std::make_shared<BrowserBridgeServer>(bridgeSocketPath(), clock);
    LinuxScriptRunner scripts(desktop.windows, browserBridge);
    QtRepeatingTimer timers;
    SettingsStore defaults;
    const auto executable = runningExecutable();
    StartAtLogin startAtLogin(autostartEntryPath(std::getenv), executable, defaults);
    startAtLogin.offerAtFirstLaunch(isInstalledExecutable(executable), *notifier);
    CanberraSoundPlayer sounds;
    NotificationCenter notifications;
    SerialQueue monitorQueue(kMonitorQueueLabel);
    // Before the presenter, whose views show it to the end.
    BrowserBridgeStatusModel browserStatus(browserBridge, clock);
    BrowserBridgeStatusModel::share(&browserStatus);
    QtAppPresenter presenter;
    // A Wayland client cannot float its cards at the bottom right; notifications with actions can.
    std::optional<LazyNotificationPrompts> prompts;
    if (session.wayland)
        prompts.emplace(presenter);

    StartAtLoginController startAtLoginSwitch(nullptr);
    startAtLoginSwitch.setStartAtLogin(&startAtLogin, notifier.get());
    StartAtLoginController::share(&startAtLoginSwitch);
    presenter.tray().setStartAtLogin(&startAtLoginSwitch);

    auto delegate = std::make_shared<AppDelegate>(
        database,
        AppEnvironment{clock, *mainQueue, timers, defaults, sounds, *notifier, notifications, workspace,
                       scripts, monitorQueue, prompts ? static_cast<AppPresenter&>(*prompts) : presenter});

    // Launching draws the first title, so the tray icon never shows blank. Its picture waits for the
    // first stored session (or a second without one), so that session never waits for the emoji font.
    TrayIcon& tray = presenter.tray();
    tray.holdPictures();
    delegate->start();
    const Subscription firstSession =
        delegate->sessionManager()->currentSession.subscribe([&tray](const auto& session) {
            if (session)
                tray.releasePictures();
        });
    QTimer::singleShot(kFirstPictureWaitMs, &tray, &TrayIcon::releasePictures);
    // Qt's accessibility bridge (made for the application's root object and at the first QML item)
    // and its tray check ask the session bus synchronously: they wait for the bus to answer, and
    // tracking does not wait for them. So the loop below is QCoreApplication's, which leaves the
    // root object to this.
    SessionBus::whenAnswered(&app, [&] {
        QAccessible::setRootObject(&app);
        presenter.attach(database, *delegate->sessionManager(), *delegate->pomodoroTimer());
        presenter.openDashboardWithoutTray();
    });
    presenter.setOpenDashboard([&delegate] { delegate->trayMenu()->menuOpenDashboard(); });
    if (const auto* x11 = app.nativeInterface<QNativeInterface::QX11Application>()) {
        xcb_connection_t* connection = x11->connection();
        presenter.setFloatingWindowHints(
            {[connection](WId window) { showOnAllDesktops(connection, static_cast<std::uint32_t>(window)); },
             [connection] { return compositingManagerRunning(connection); }});
    }

    QObject::connect(&tray, &TrayIcon::popoverToggleRequested, [&presenter] { presenter.togglePopover(); });
    tray.setMenuItems([&delegate] { return delegate->trayMenu()->contextMenuItems(); });
    QObject::connect(&tray, &TrayIcon::openDashboardRequested,
                     [&delegate] { delegate->trayMenu()->menuOpenDashboard(); });
    QObject::connect(&tray, &TrayIcon::quitRequested, &app, &QApplication::quit);
    QObject::connect(&instance, &SingleInstance::activationRequested,
                     [&delegate] { delegate->openDashboard(); });
    OrderlyExit orderlyExit([&delegate] { delegate->sessionManager()->closeOpenSession(); },
                            [&delegate] { delegate->stop(); });
    return QCoreApplication::exec();
}
