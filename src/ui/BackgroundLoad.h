// A screen's loads off the main thread: each load runs on a worker of the screen's own, and its result
// comes back to the main thread. Only the newest load's result is taken — one that was overtaken is
// dropped, so stepping quickly through days never ends on an older day's data — and a load that has
// not begun yet when a newer one is asked for never runs.
//
// The work must capture only what outlives the loader (the store, copies of values); the loader waits
// for a running load when it goes, so the store is never read after the screen is gone.
#pragma once

#include <QCoreApplication>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <utility>

namespace larkspan {

template <class Result>
class BackgroundLoad {
public:
    BackgroundLoad() { worker_.setMaxThreadCount(1); }
    ~BackgroundLoad() {
        worker_.clear();
        worker_.waitForDone();
    }
    BackgroundLoad(const BackgroundLoad&) = delete;
    BackgroundLoad& operator=(const BackgroundLoad&) = delete;

    // Runs `work` on the worker, then `done` with its result on the main thread, unless another load
    // was started meanwhile or the loader is gone.
    void start(std::function<Result()> work, std::function<void(Result)> done) {
        worker_.clear();
        const auto generation = ++*latest_;
        std::weak_ptr<unsigned> latest = latest_;
        worker_.start([work = std::move(work), done = std::move(done), generation, latest]() mutable {
            auto result = std::make_shared<Result>(work());
            QMetaObject::invokeMethod(
                QCoreApplication::instance(),
                [done = std::move(done), result, generation, latest] {
                    const auto newest = latest.lock();
                    if (newest && *newest == generation)
                        done(std::move(*result));
                },
                Qt::QueuedConnection);
        });
    }

    // Waits for the running load and delivers its result, for tests and tools that need it now.
    void wait() {
        worker_.waitForDone();
        QCoreApplication::sendPostedEvents(QCoreApplication::instance(), QEvent::MetaCall);
    }

private:
    QThreadPool worker_;
    std::shared_ptr<unsigned> latest_ = std::make_shared<unsigned>(0);
};

}  // namespace larkspan
