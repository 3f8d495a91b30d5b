// A serial queue: work runs one item at a time, in submission order.
#pragma once

#include <functional>
#include <string>

namespace larkspan {

class DispatchQueue {
public:
    virtual ~DispatchQueue() = default;
    virtual const std::string& label() const = 0;
    // Queues `work` and returns at once.
    virtual void async(std::function<void()> work) = 0;
    // Queues `work` and waits for it. Called from the queue itself, it runs inline instead of
    // deadlocking. Exceptions thrown by `work` reach the caller.
    virtual void sync(const std::function<void()>& work) = 0;
};

}  // namespace larkspan
