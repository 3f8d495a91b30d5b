// KWin source: one exported object, and the load sequence unloadScript → loadScript → start, each
// step on the previous one's reply. A stale copy from an earlier run is unloaded first, or KWin
// would refuse the name.
#include "Platform/Qt/KWinSource.h"

#include <QDBusConnectionInterface>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QFile>

#include <functional>

namespace larkspan {

namespace {

const char* const kKWinService = "org.kde.KWin";
const char* const kScriptingPath = "/Scripting";
const char* const kScriptingInterface = "org.kde.kwin.Scripting";
constexpr int kCallTimeoutMs = 2000;

}  // namespace

KWinSource::KWinSource(std::shared_ptr<ReportedWorkspace> workspace, QDBusConnection bus, QString scriptPath,
                       QObject* parent)
    : QObject(parent),
      workspace_(std::move(workspace)),
      bus_(std::move(bus)),
      scriptPath_(std::move(scriptPath)) {
    bus_.registerObject(kPath, this, QDBusConnection::ExportAllSlots);
    bus_.registerService(kService);
    auto* watcher = new QDBusServiceWatcher(
        kKWinService, bus_,
        QDBusServiceWatcher::WatchForRegistration | QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &KWinSource::loadScript);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
        front_ = {};
        workspace_->sourceConnected(false);
    });
    loadScript();
}

bool KWinSource::runsOn(const QDBusConnection& bus) {
    if (!bus.isConnected())
        return false;
    const auto reply = bus.interface()->isServiceRegistered(kKWinService);
    return reply.isValid() && reply.value();
}

void KWinSource::Activated(const QString& resourceClass, const QString& desktopFileName,
                           const QString& caption, int pid) {
    workspace_->sourceConnected(true);
    if (resourceClass.isEmpty() && desktopFileName.isEmpty()) {
        if (front_.id != 0)
            workspace_->windowChanged(front_, false);
        return;
    }
    ReportedWindow window;
    window.wmClass = resourceClass.toStdString();
    window.desktopFile = desktopFileName.toStdString();
    window.title = caption.toStdString();
    window.pid = pid > 0 ? pid : 0;
    window.id = std::hash<std::string>{}(window.wmClass + '\n' + window.desktopFile) ^
                static_cast<std::uint64_t>(window.pid);
    front_ = window;
    workspace_->windowChanged(std::move(window), true);
}

void KWinSource::call(const QString& path, const QString& method, const QVariantList& arguments,
                      std::function<void(const QDBusMessage&)> then) {
    auto message = QDBusMessage::createMethodCall(kKWinService, path, kScriptingInterface, method);
    message.setArguments(arguments);
    auto* pending = new QDBusPendingCallWatcher(bus_.asyncCall(message, kCallTimeoutMs), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this,
            [then = std::move(then)](QDBusPendingCallWatcher* finished) {
                finished->deleteLater();
                then(finished->reply());
            });
}

void KWinSource::loadScript() {
    QFile source(QStringLiteral(":/kwin-script/larkspan-kwin.js"));
    QFile target(scriptPath_);
    if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
        target.write(source.readAll()) < 0) {
        return;
    }
    target.close();
    // unloadScript fails when nothing was loaded; either way go on.
    call(kScriptingPath, "unloadScript", {QString(kScriptName)}, [this](const QDBusMessage&) {
        call(kScriptingPath, "loadScript", {scriptPath_, QString(kScriptName)},
             [this](const QDBusMessage& reply) {
                 if (reply.type() == QDBusMessage::ReplyMessage && reply.arguments().value(0).toInt() >= 0)
                     call(kScriptingPath, "start", {}, [](const QDBusMessage&) {});
             });
    });
}

}  // namespace larkspan
