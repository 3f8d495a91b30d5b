#include "Platform/Qt/SessionBus.h"

#include <QLocalSocket>
#include <QPointer>
#include <QScopedValueRollback>
#include <QTimer>
#include <QUrl>

#include <unistd.h>

#include <memory>
#include <utility>
#include <vector>

namespace larkspan::SessionBus {

namespace {

constexpr int kAnswerTimeoutMs = 2000;
constexpr int kRetryPauseMs = 5000;

// The socket path of $DBUS_SESSION_BUS_ADDRESS's first entry; empty when there is none to probe.
QString socketPath() {
    const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS").section(';', 0, 0);
    if (!address.startsWith(QLatin1String("unix:")))
        return {};
    for (const QString& pair : address.mid(5).split(',')) {
        if (pair.startsWith(QLatin1String("path=")))
            return QUrl::fromPercentEncoding(pair.mid(5).toUtf8());
    }
    return {};
}

class Probe final : public QObject {
public:
    Probe() {
        timeout_.setSingleShot(true);
        connect(&timeout_, &QTimer::timeout, this, [this] {
            const QScopedValueRollback<bool> quiet(dropping_, true);
            socket_.abort();
            QTimer::singleShot(kRetryPauseMs, this, &Probe::ask);
        });
        connect(&socket_, &QLocalSocket::connected, this, [this] {
            // A NUL byte, then the start of the EXTERNAL handshake: any line back means the bus lives.
            socket_.write(QByteArray(1, '\0') + "AUTH EXTERNAL " + QByteArray::number(::getuid()).toHex() +
                          "\r\n");
        });
        connect(&socket_, &QLocalSocket::readyRead, this, [this] {
            if (socket_.canReadLine())
                answer();
        });
        // A refused or vanished socket answers too: Qt then finds no bus at once, without waiting.
        connect(&socket_, &QLocalSocket::errorOccurred, this, [this] {
            if (!dropping_)
                answer();
        });
    }

    void start() {
        path_ = socketPath();
        if (path_.isEmpty()) {
            answer();
            return;
        }
        ask();
    }

    bool answered = false;
    std::vector<std::pair<QPointer<QObject>, std::function<void()>>> waiting;

private:
    void ask() {
        timeout_.start(kAnswerTimeoutMs);
        socket_.connectToServer(path_);
    }

    void answer() {
        if (answered)
            return;
        answered = true;
        timeout_.stop();
        const QScopedValueRollback<bool> quiet(dropping_, true);
        socket_.abort();
        for (auto& [context, work] : std::exchange(waiting, {})) {
            if (context)
                work();
        }
    }

    QString path_;
    bool dropping_ = false;  // while we close the socket ourselves
    QLocalSocket socket_;
    QTimer timeout_;
};

Probe& probe() {
    static Probe* const instance = [] {
        auto* made = new Probe;  // lives as long as the application's event loop
        made->start();
        return made;
    }();
    return *instance;
}

}  // namespace

void whenAnswered(QObject* context, std::function<void()> work) {
    Probe& bus = probe();
    if (bus.answered) {
        work();
        return;
    }
    bus.waiting.emplace_back(context, std::move(work));
}

}  // namespace larkspan::SessionBus
