// One tracker per user session. The first launch takes a lock file and listens on a local socket in
// $XDG_RUNTIME_DIR; a later launch finds the lock taken, asks the first to open its dashboard and
// exits. A lock left by a crashed process is stale and taken over.
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

#include <memory>

namespace larkspan {

class SingleInstance final : public QObject {
    Q_OBJECT
public:
    // `runtimeDir` holds the lock and the socket; empty means $XDG_RUNTIME_DIR, else the temp folder.
    explicit SingleInstance(const QString& runtimeDir = {}, QObject* parent = nullptr);

    // True when this process is now the one instance; it then listens for later launches.
    bool claim();
    // From a later launch: asks the running instance to show itself. False when nobody answered.
    bool notifyRunningInstance() const;

signals:
    void activationRequested();

private:
    QString socketPath() const;

    QString dir_;
    std::unique_ptr<QLockFile> lock_;
    QLocalServer server_;
};

}  // namespace larkspan
