#include "Platform/Qt/QtRepeatingTimer.h"

#include <QTimer>

#include <cmath>

namespace larkspan {

namespace {

class QtTimerHandle final : public TimerHandle {
public:
    QtTimerHandle(double interval, std::function<void()> tick) {
        timer_.setTimerType(Qt::PreciseTimer);
        timer_.setInterval(static_cast<int>(std::lround(std::max(interval, 0.001) * 1000.0)));
        QObject::connect(&timer_, &QTimer::timeout, [tick = std::move(tick)] { tick(); });
        timer_.start();
    }

private:
    QTimer timer_;
};

}  // namespace

std::unique_ptr<TimerHandle> QtRepeatingTimer::schedule(double interval, std::function<void()> tick) {
    return std::make_unique<QtTimerHandle>(interval, std::move(tick));
}

}  // namespace larkspan
