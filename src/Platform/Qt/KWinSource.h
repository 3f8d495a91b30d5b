// Windows of a KDE Plasma (KWin) Wayland session, fed into a ReportedWorkspace. KWin shows other
// windows to its own scripts only, so Larkspan loads a small script through org.kde.kwin.Scripting
// that calls this object back (org.larkspan.Larkspan.KWin) on every activation and caption change,
// with the window's resource class, desktop file name, caption and pid. When KWin restarts, the
// script is loaded again. Every call to KWin is asynchronous with a short timeout.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

#include <functional>
#include <memory>

#include "Platform/Linux/ReportedWorkspace.h"

namespace larkspan {

class KWinSource final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.larkspan.Larkspan.KWin")
public:
    static constexpr const char* kService = "org.larkspan.Larkspan.KWin";
    static constexpr const char* kPath = "/org/larkspan/Larkspan/KWin";
    static constexpr const char* kScriptName = "larkspan";

    // Writes the script to `scriptPath` (a user-only folder) and loads it into KWin.
    KWinSource(std::shared_ptr<ReportedWorkspace> workspace, QDBusConnection bus, QString scriptPath,
               QObject* parent = nullptr);

    // Whether KWin is on `bus`.
    static bool runsOn(const QDBusConnection& bus);

public slots:
    // Called by the script; empty texts mean no window is active.
    Q_NOREPLY void Activated(const QString& resourceClass, const QString& desktopFileName,
                             const QString& caption, int pid);

private:
    void loadScript();
    // Calls KWin's scripting object; `then` gets the reply, an error reply included.
    void call(const QString& path, const QString& method, const QVariantList& arguments,
              std::function<void(const QDBusMessage&)> then);

    const std::shared_ptr<ReportedWorkspace> workspace_;
    QDBusConnection bus_;
    const QString scriptPath_;
    ReportedWindow front_;  // the window last reported in front; id 0 when none
};

}  // namespace larkspan
