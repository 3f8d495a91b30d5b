#include "Platform/SerialQueue.h"

#include <pthread.h>

#include <exception>
#include <future>

namespace larkspan {

SerialQueue::SerialQueue(std::string label) : label_(std::move(label)) {
    worker_ = std::thread([this] { run(); });
    const auto dot = label_.rfind('.');
    const std::string name = label_.substr(dot == std::string::npos ? 0 : dot + 1).substr(0, 15);
    pthread_setname_np(worker_.native_handle(), name.c_str());
}

SerialQueue::~SerialQueue() {
    {
        std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    wake_.notify_one();
    worker_.join();
}

void SerialQueue::async(std::function<void()> work) {
    {
        std::lock_guard lock(mutex_);
        pending_.push_back(std::move(work));
    }
    wake_.notify_one();
}

void SerialQueue::sync(const std::function<void()>& work) {
    if (std::this_thread::get_id() == worker_.get_id()) {
        work();
        return;
    }
    // Take the future before queueing: once the work has run, the promise may be gone.
    std::promise<void> done;
    auto finished = done.get_future();
    async([&] {
        try {
            work();
            done.set_value();
        } catch (...) {
            done.set_exception(std::current_exception());
        }
    });
    finished.get();
}

void SerialQueue::run() {
    for (;;) {
        std::function<void()> work;
        {
            std::unique_lock lock(mutex_);
            wake_.wait(lock, [this] { return stopping_ || !pending_.empty(); });
            if (pending_.empty()) {
                return;
            }
            work = std::move(pending_.front());
            pending_.pop_front();
        }
        // Async work has nobody to report to; an escaping exception must not end the process.
        try {
            work();
        } catch (...) {
        }
    }
}

}  // namespace larkspan
