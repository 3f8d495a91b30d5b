// MainQueue over the Qt event loop: posted work runs on the GUI thread, in posting order.
#pragma once

#include <QObject>

#include "Platform/MainQueue.h"

namespace larkspan {

class QtMainQueue final : public MainQueue {
public:
    // `context` must live on the main thread; work posted after it is destroyed is dropped.
    explicit QtMainQueue(QObject* context) : context_(context) {}
    void post(std::function<void()> work) override;

private:
    QObject* context_;
};

}  // namespace larkspan
