// Windows and input silence of a GNOME Shell session, fed into a ReportedWorkspace. GNOME lets no
// client see other windows, so Larkspan ships a small Shell extension that puts the focused window on
// the session bus (org.larkspan.Larkspan.Shell); idle time comes from Mutter's IdleMonitor. Every
// call is asynchronous with a short timeout: a Shell that hangs never holds up the main thread, and
// the extension coming and going is followed through the bus.
#pragma once

#include <QDBusConnection>
#include <QObject>

#include <memory>

#include "Platform/Linux/ReportedWorkspace.h"
#include "Platform/Qt/IdleTimePoll.h"

class QDBusServiceWatcher;

namespace larkspan {

class GnomeShellSource final : public QObject {
    Q_OBJECT
public:
    static constexpr const char* kExtensionService = "org.larkspan.Larkspan.Shell";
    static constexpr const char* kExtensionUUID = "larkspan@larkspan.org";

    GnomeShellSource(std::shared_ptr<ReportedWorkspace> workspace, QDBusConnection bus,
                     QObject* parent = nullptr);

    // Whether the Shell itself is on `bus`: a GNOME session, with or without our extension.
    static bool runsOn(const QDBusConnection& bus);
    // Whether the extension answers on `bus` right now.
    static bool extensionPresent(const QDBusConnection& bus);

private slots:
    void onChanged(const QString& appID, const QString& wmClass, const QString& title, uint pid);

private:
    void fetch();

    const std::shared_ptr<ReportedWorkspace> workspace_;
    QDBusConnection bus_;
    QDBusServiceWatcher* watcher_ = nullptr;
    IdleTimePoll idle_;
    ReportedWindow front_;  // the window last reported in front; id 0 when none
};

}  // namespace larkspan
