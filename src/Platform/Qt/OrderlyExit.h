// The last write before the process ends. `finish` runs once, on the main thread, however the
// process ends in order: the event loop's quit (the tray's Quit; SIGTERM and SIGINT through
// TerminationSignals) or Qt's exit() when the X connection breaks. A desktop logout first asks the
// application to save its state: `save` runs then, and the session manager's quit or signal
// follows; a logout that is cancelled leaves the application running as before.
#pragma once

#include <QObject>

#include <functional>

namespace larkspan {

class OrderlyExit final : public QObject {
    Q_OBJECT
public:
    // After the QApplication exists; one instance per process. Both actions must stay callable
    // for the instance's life.
    OrderlyExit(std::function<void()> save, std::function<void()> finish);
    // Returning from main ends the process with everything already torn down: nothing more to run.
    ~OrderlyExit() override;
};

}  // namespace larkspan
