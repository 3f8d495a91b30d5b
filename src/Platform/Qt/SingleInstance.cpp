#include "Platform/Qt/SingleInstance.h"

#include <QDir>
#include <QLocalSocket>
#include <QStandardPaths>

namespace larkspan {

namespace {

const QByteArray kShowMessage = "show\n";

}  // namespace

SingleInstance::SingleInstance(const QString& runtimeDir, QObject* parent)
    : QObject(parent), dir_(runtimeDir) {
    if (dir_.isEmpty())
        dir_ = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (dir_.isEmpty())
        dir_ = QDir::tempPath();
    QDir().mkpath(dir_);
    lock_ = std::make_unique<QLockFile>(dir_ + "/larkspan.lock");
    lock_->setStaleLockTime(0);  // liveness is judged by the owner's pid, never by age

    connect(&server_, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* client = server_.nextPendingConnection()) {
            connect(client, &QLocalSocket::readyRead, this, [this, client] {
                if (client->readAll().startsWith(kShowMessage.trimmed()))
                    emit activationRequested();
                client->disconnectFromServer();
            });
            connect(client, &QLocalSocket::disconnected, client, &QObject::deleteLater);
        }
    });
}

QString SingleInstance::socketPath() const {
    return dir_ + "/larkspan.socket";
}

bool SingleInstance::claim() {
    if (!lock_->tryLock(0))
        return false;
    QLocalServer::removeServer(socketPath());  // a socket file left by a crash
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    server_.listen(socketPath());
    return true;
}

bool SingleInstance::notifyRunningInstance() const {
    QLocalSocket socket;
    socket.connectToServer(socketPath());
    if (!socket.waitForConnected(1000))
        return false;
    socket.write(kShowMessage);
    return socket.waitForBytesWritten(1000);
}

}  // namespace larkspan
