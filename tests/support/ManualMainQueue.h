// A main queue that runs nothing until the test drains it, so tests see the exact order of posts.
#pragma once

#include <deque>
#include <functional>
#include <mutex>

#include "Platform/MainQueue.h"

namespace larkspan::test {

class ManualMainQueue final : public MainQueue {
public:
    void post(std::function<void()> work) override {
        std::lock_guard lock(mutex_);
        pending_.push_back(std::move(work));
    }

    // Runs queued work, including work posted while draining. Returns how many items ran.
    int drain() {
        int ran = 0;
        for (;;) {
            std::function<void()> work;
            {
                std::lock_guard lock(mutex_);
                if (pending_.empty()) return ran;
                work = std::move(pending_.front());
                pending_.pop_front();
            }
            work();
            ++ran;
        }
    }

    std::size_t pendingCount() const {
        std::lock_guard lock(mutex_);
        return pending_.size();
    }

private:
    mutable std::mutex mutex_;
    std::deque<std::function<void()>> pending_;
};

}  // namespace larkspan::test
