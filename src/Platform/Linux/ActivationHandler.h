// The one function a workspace runs on the main thread when another application comes to the
// front. Set from any thread; a posted call holds it weakly, so a workspace that is gone calls nothing.
#pragma once

#include <functional>
#include <memory>
#include <mutex>

#include "Platform/MainQueue.h"

namespace larkspan {

class ActivationHandler {
public:
    // Replaces the function; an empty one removes it.
    void set(std::function<void()> function) {
        std::lock_guard lock(shared_->mutex);
        shared_->function = std::move(function);
    }

    // Posts one call of the function as it stands when the post runs.
    void announce(MainQueue& mainQueue) const {
        mainQueue.post([weak = std::weak_ptr<Shared>(shared_)] {
            auto shared = weak.lock();
            if (!shared)
                return;
            std::function<void()> function;
            {
                std::lock_guard lock(shared->mutex);
                function = shared->function;
            }
            if (function)
                function();
        });
    }

private:
    struct Shared {
        std::mutex mutex;
        std::function<void()> function;
    };
    const std::shared_ptr<Shared> shared_ = std::make_shared<Shared>();
};

}  // namespace larkspan
