#include "Platform/Qt/IdleTimePoll.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

#include <algorithm>
#include <chrono>

#include "Platform/Qt/SessionBus.h"

namespace larkspan {

namespace {

// Longer than any idle threshold, short enough that no clock arithmetic can overflow.
constexpr qulonglong kLongestIdleMs = 366ull * 24 * 3600 * 1000;

}  // namespace

IdleTimePoll::IdleTimePoll(std::shared_ptr<ReportedWorkspace> workspace, Method method, QObject* parent)
    : QObject(parent), workspace_(std::move(workspace)), method_(method) {
    connect(&timer_, &QTimer::timeout, this, &IdleTimePoll::poll);
}

void IdleTimePoll::start(QDBusConnection bus) {
    bus_ = std::move(bus);
    timer_.start(kPollMs);
}

void IdleTimePoll::startOnSessionBus() {
    SessionBus::whenAnswered(this, [this] { start(QDBusConnection::sessionBus()); });
}

void IdleTimePoll::poll() {
    auto call =
        QDBusMessage::createMethodCall(method_.service, method_.path, method_.interface, method_.name);
    // A desktop without the service must not have the bus start one every two seconds.
    call.setAutoStartService(false);
    const auto sent = std::chrono::steady_clock::now();
    auto* pending = new QDBusPendingCallWatcher(bus_.asyncCall(call, kCallTimeoutMs), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this,
            [this, sent](QDBusPendingCallWatcher* finished) {
                finished->deleteLater();
                const QDBusMessage reply = finished->reply();
                bool number = false;
                // Mutter answers a 64-bit figure, the screen saver a 32-bit one.
                const qulonglong ms = reply.arguments().value(0).toULongLong(&number);
                if (reply.type() != QDBusMessage::ReplyMessage || !number)
                    return;
                const auto idle = std::chrono::milliseconds(std::min(ms, kLongestIdleMs));
                if (idle < std::chrono::seconds(1))
                    workspace_->inputSilentSince(std::nullopt);
                else
                    workspace_->inputSilentSince(sent - idle);
            });
}

}  // namespace larkspan
