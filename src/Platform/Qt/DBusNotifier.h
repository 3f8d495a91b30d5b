// Desktop notifications through org.freedesktop.Notifications on the session bus. Calls are
// asynchronous, so a slow or missing notification daemon never stalls the main thread. A missing
// session bus or daemon is reported once on standard error; the notifications are then dropped.
#pragma once

#include <QObject>

#include <map>

#include "Platform/Notifier.h"

namespace larkspan {

class DBusNotifier final : public QObject, public Notifier {
    Q_OBJECT
public:
    explicit DBusNotifier(QObject* parent = nullptr);
    void notify(const std::string& id, const std::string& title, const std::string& body) override;

private:
    void reportOnce(const QString& why);

    std::map<std::string, uint> shownIds_;  // our id → the daemon's, so a repeat replaces its banner
    bool reported_ = false;
};

}  // namespace larkspan
