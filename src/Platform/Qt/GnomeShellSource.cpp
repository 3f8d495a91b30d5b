// GNOME Shell source. The extension reports only the focused window, so each application keeps
// one entry in the workspace (its id derives from app id and pid) holding the title it showed last.
#include "Platform/Qt/GnomeShellSource.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

#include <functional>

namespace larkspan {

namespace {

const char* const kPath = "/org/larkspan/Larkspan/FocusedWindow";
const char* const kInterface = "org.larkspan.Larkspan.FocusedWindow";
constexpr int kCallTimeoutMs = 1000;

bool hasOwner(const QDBusConnection& bus, const QString& service) {
    if (!bus.isConnected())
        return false;
    const auto reply = bus.interface()->isServiceRegistered(service);
    return reply.isValid() && reply.value();
}

}  // namespace

GnomeShellSource::GnomeShellSource(std::shared_ptr<ReportedWorkspace> workspace, QDBusConnection bus,
                                   QObject* parent)
    : QObject(parent),
      workspace_(std::move(workspace)),
      bus_(std::move(bus)),
      idle_(workspace_, IdleTimePoll::kMutter) {
    bus_.connect(kExtensionService, kPath, kInterface, "Changed", this,
                 SLOT(onChanged(QString, QString, QString, uint)));
    watcher_ = new QDBusServiceWatcher(
        kExtensionService, bus_,
        QDBusServiceWatcher::WatchForRegistration | QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher_, &QDBusServiceWatcher::serviceRegistered, this, [this] { fetch(); });
    connect(watcher_, &QDBusServiceWatcher::serviceUnregistered, this, [this] {
        front_ = {};
        workspace_->sourceConnected(false);
    });
    idle_.start(bus_);
    if (extensionPresent(bus_))
        fetch();
}

bool GnomeShellSource::runsOn(const QDBusConnection& bus) {
    return hasOwner(bus, QStringLiteral("org.gnome.Shell"));
}

bool GnomeShellSource::extensionPresent(const QDBusConnection& bus) {
    return hasOwner(bus, kExtensionService);
}

void GnomeShellSource::fetch() {
    auto call = QDBusMessage::createMethodCall(kExtensionService, kPath, kInterface, "Get");
    auto* pending = new QDBusPendingCallWatcher(bus_.asyncCall(call, kCallTimeoutMs), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        const QDBusPendingReply<QString, QString, QString, uint> reply = *finished;
        if (reply.isError())
            return;
        workspace_->sourceConnected(true);
        onChanged(reply.argumentAt<0>(), reply.argumentAt<1>(), reply.argumentAt<2>(), reply.argumentAt<3>());
    });
}

void GnomeShellSource::onChanged(const QString& appID, const QString& wmClass, const QString& title,
                                 uint pid) {
    if (appID.isEmpty() && wmClass.isEmpty()) {
        // Nothing focused: the desktop or the overview.
        if (front_.id != 0)
            workspace_->windowChanged(front_, false);
        return;
    }
    ReportedWindow window;
    window.appID = appID.toStdString();
    window.wmClass = wmClass.toStdString();
    window.title = title.toStdString();
    window.pid = pid;
    window.id = std::hash<std::string>{}(window.appID + '\n' + window.wmClass) ^ pid;
    front_ = window;
    workspace_->sourceConnected(true);
    workspace_->windowChanged(std::move(window), true);
}

}  // namespace larkspan
