// Work handed to the main thread. Published values are assigned only from work posted here.
#pragma once

#include <functional>

namespace larkspan {

class MainQueue {
public:
    virtual ~MainQueue() = default;
    // Runs `work` later on the main thread, in posting order. Never runs it inline.
    virtual void post(std::function<void()> work) = 0;
};

}  // namespace larkspan
