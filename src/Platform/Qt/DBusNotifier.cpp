#include "Platform/Qt/DBusNotifier.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

#include <algorithm>
#include <cstdio>

#include "Platform/Qt/SessionBus.h"

namespace larkspan {

namespace {

const char* const kService = "org.freedesktop.Notifications";
const char* const kPath = "/org/freedesktop/Notifications";
const char* const kInterface = "org.freedesktop.Notifications";
constexpr std::size_t kShownIdsKept = 16;

}  // namespace

DBusNotifier::DBusNotifier(QObject* parent) : QObject(parent) {}

void DBusNotifier::notify(const std::string& id, const std::string& title, const std::string& body) {
    SessionBus::whenAnswered(this, [this, id, title, body] { send(id, title, body); });
}

void DBusNotifier::send(const std::string& id, const std::string& title, const std::string& body) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        reportOnce("no session bus");
        return;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kInterface, "Notify");
    const auto previous = std::find_if(shownIds_.begin(), shownIds_.end(),
                                       [&id](const auto& shown) { return shown.first == id; });
    const uint replaces = previous == shownIds_.end() ? 0u : previous->second;
    // The banner is silent: the timer plays its own sounds.
    const QVariantMap hints{{"suppress-sound", true}, {"desktop-entry", "larkspan"}};
    call << QString("Larkspan") << replaces << QString() << QString::fromStdString(title)
         << QString::fromStdString(body) << QStringList() << hints << -1;

    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, id](QDBusPendingCallWatcher* finished) {
        const QDBusPendingReply<uint> reply = *finished;
        if (reply.isError()) {
            reportOnce(reply.error().message());
        } else {
            remember(id, reply.value());
        }
        finished->deleteLater();
    });
}

void DBusNotifier::remember(const std::string& id, uint daemonID) {
    std::erase_if(shownIds_, [&id](const auto& shown) { return shown.first == id; });
    shownIds_.emplace_front(id, daemonID);
    if (shownIds_.size() > kShownIdsKept)
        shownIds_.pop_back();
}

void DBusNotifier::reportOnce(const QString& why) {
    if (reported_)
        return;
    reported_ = true;
    std::fprintf(stderr, "Larkspan: desktop notifications are unavailable (%s).\n", qPrintable(why));
}

}  // namespace larkspan
