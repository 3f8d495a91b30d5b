#include "App/ui/StartAtLoginController.h"

#include <QQmlEngine>

namespace larkspan {

StartAtLoginController::StartAtLoginController(QObject* parent) : QObject(parent) {}

StartAtLoginController* StartAtLoginController::create(QQmlEngine* engine, QJSEngine*) {
    if (shared_) {
        QJSEngine::setObjectOwnership(shared_, QJSEngine::CppOwnership);
        return shared_;
    }
    return new StartAtLoginController(engine);
}

void StartAtLoginController::share(StartAtLoginController* controller) {
    shared_ = controller;
}

void StartAtLoginController::setStartAtLogin(StartAtLogin* startAtLogin, Notifier* notifier) {
    startAtLogin_ = startAtLogin;
    notifier_ = notifier;
    problem_.clear();
    refresh();
    emit changed();
}

void StartAtLoginController::refresh() {
    const bool on = startAtLogin_ && startAtLogin_->isOn();
    if (on == on_)
        return;
    on_ = on;
    emit changed();
}

void StartAtLoginController::setOn(bool on) {
    if (!startAtLogin_)
        return;
    const auto why = startAtLogin_->set(on);
    problem_ = why ? QString::fromStdString(*why) : QString();
    if (why && notifier_)
        notifier_->notify(std::string(StartAtLogin::notificationID), "Start Larkspan at login", *why);
    on_ = startAtLogin_->isOn();
    emit changed();
}

}  // namespace larkspan
