#include "Platform/Qt/OrderlyExit.h"

#include <QGuiApplication>
#include <QSessionManager>

#include <cstdlib>
#include <utility>

namespace larkspan {

namespace {

std::function<void()> pendingFinish;  // main thread

void runFinish() {
    if (auto finish = std::exchange(pendingFinish, nullptr))
        finish();
}

extern "C" void finishAtExit() {
    runFinish();
}

}  // namespace

OrderlyExit::OrderlyExit(std::function<void()> save, std::function<void()> finish) {
    pendingFinish = std::move(finish);
    static const bool hooked = std::atexit(finishAtExit) == 0;
    (void)hooked;
    connect(qApp, &QCoreApplication::aboutToQuit, this, &runFinish);
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this,
            [save = std::move(save)](QSessionManager&) { save(); });
}

OrderlyExit::~OrderlyExit() {
    pendingFinish = nullptr;
}

}  // namespace larkspan
