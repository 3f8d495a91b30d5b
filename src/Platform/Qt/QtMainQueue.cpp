#include "Platform/Qt/QtMainQueue.h"

#include <QMetaObject>

namespace larkspan {

void QtMainQueue::post(std::function<void()> work) {
    QMetaObject::invokeMethod(context_, std::move(work), Qt::QueuedConnection);
}

}  // namespace larkspan
