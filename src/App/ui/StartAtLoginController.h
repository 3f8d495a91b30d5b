// The "Start Larkspan at login" switch, shared by the tray menu's checkable entry and the Settings
// page's Switch: one object, shared with QML as a singleton, so both show the same state. It reads the
// entry's presence again on refresh(), which the menu and the page call as they open, so a file
// removed by hand shows as off. Until setStartAtLogin() gives it the logic it is unavailable and
// the switch stays hidden.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QString>

#include "App/StartAtLogin.h"
#include "Platform/Notifier.h"

class QJSEngine;
class QQmlEngine;

namespace larkspan {

class StartAtLoginController final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(bool available READ available NOTIFY changed)
    Q_PROPERTY(bool on READ isOn NOTIFY changed)
    // Why the last change did not happen, in words for the person; empty after one that did.
    Q_PROPERTY(QString problem READ problem NOTIFY changed)

public:
    // Not default-constructible, so that QML takes its instance from create().
    explicit StartAtLoginController(QObject* parent);

    // QML's instance: the shared one, else an unavailable one owned by the engine.
    static StartAtLoginController* create(QQmlEngine* engine, QJSEngine*);
    // The instance every engine made afterwards shows; it must outlive them.
    static void share(StartAtLoginController* controller);

    // `startAtLogin` and `notifier` (which also carries failures, for the menu has no room for them)
    // must outlive the controller or be replaced first.
    void setStartAtLogin(StartAtLogin* startAtLogin, Notifier* notifier);

    bool available() const { return startAtLogin_ != nullptr; }
    bool isOn() const { return on_; }
    QString problem() const { return problem_; }

    Q_INVOKABLE void refresh();
    Q_INVOKABLE void setOn(bool on);

signals:
    void changed();

private:
    static inline StartAtLoginController* shared_ = nullptr;

    StartAtLogin* startAtLogin_ = nullptr;
    Notifier* notifier_ = nullptr;
    bool on_ = false;
    QString problem_;
};

}  // namespace larkspan
