// Desktop notifications through org.freedesktop.Notifications on the session bus. Calls are
// asynchronous and wait for the bus to answer first (SessionBus), so a slow or missing
// notification daemon or a frozen bus never stalls the main thread. A missing
// session bus or daemon is reported once on standard error; the notifications are then dropped.
#pragma once

#include <QObject>

#include <deque>
#include <string>
#include <utility>

#include "Platform/Notifier.h"

namespace larkspan {

class DBusNotifier final : public QObject, public Notifier {
    Q_OBJECT
public:
    explicit DBusNotifier(QObject* parent = nullptr);
    void notify(const std::string& id, const std::string& title, const std::string& body) override;

private:
    void send(const std::string& id, const std::string& title, const std::string& body);
    void reportOnce(const QString& why);

    void remember(const std::string& id, uint daemonID);

    // Our id → the daemon's, so a repeat replaces its banner; the most recent first. One-off ids
    // (a fresh one per finished Pomodoro) would pile up forever, so only the last few are kept.
    std::deque<std::pair<std::string, uint>> shownIds_;
    bool reported_ = false;
};

}  // namespace larkspan
