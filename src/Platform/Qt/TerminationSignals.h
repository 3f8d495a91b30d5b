// Turns SIGTERM and SIGINT into an orderly quit on the main thread. A signal handler may do almost
// nothing, so it writes one byte to a pipe that the event loop watches (the self-pipe pattern).
#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace larkspan {

class TerminationSignals final : public QObject {
    Q_OBJECT
public:
    // Installs the handlers; one instance per process.
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

signals:
    void terminationRequested(int signalNumber);

private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace larkspan
