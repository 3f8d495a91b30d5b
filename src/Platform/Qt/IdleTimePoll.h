// Input silence read by polling a D-Bus method that answers the milliseconds since the last input:
// Mutter's IdleMonitor on GNOME, or org.freedesktop.ScreenSaver where a desktop offers neither
// Mutter nor a Wayland idle protocol. Every call is asynchronous with a short timeout, so a peer that
// hangs holds nothing up; a peer that is missing or fails leaves the user counted as active.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <memory>

#include "Platform/Linux/ReportedWorkspace.h"

namespace larkspan {

class IdleTimePoll final : public QObject {
public:
    struct Method {
        const char* service;
        const char* path;
        const char* interface;
        const char* name;
    };
    static constexpr Method kMutter = {"org.gnome.Mutter.IdleMonitor", "/org/gnome/Mutter/IdleMonitor/Core",
                                       "org.gnome.Mutter.IdleMonitor", "GetIdletime"};
    // KDE, the implementation that matters, answers in milliseconds although the interface's own
    // description says seconds.
    static constexpr Method kScreenSaver = {"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver",
                                            "org.freedesktop.ScreenSaver", "GetSessionIdleTime"};
    static constexpr int kCallTimeoutMs = 1000;
    static constexpr int kPollMs = 2000;  // half the capture period, so a capture sees a fresh figure

    IdleTimePoll(std::shared_ptr<ReportedWorkspace> workspace, Method method, QObject* parent = nullptr);

    // Starts polling on `bus`; once only.
    void start(QDBusConnection bus);
    // Starts polling the session bus once it has answered (SessionBus), so making this costs no bus work.
    void startOnSessionBus();

private:
    void poll();

    const std::shared_ptr<ReportedWorkspace> workspace_;
    const Method method_;
    QDBusConnection bus_{QString()};
    QTimer timer_;
};

}  // namespace larkspan
