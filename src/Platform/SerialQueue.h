// DispatchQueue on one worker thread of its own. The thread is named after the label's tail
// (Linux allows 15 characters), which makes it easy to spot in a debugger or `top -H`.
#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

#include "Platform/DispatchQueue.h"

namespace larkspan {

class SerialQueue final : public DispatchQueue {
public:
    explicit SerialQueue(std::string label);
    // Finishes the queued work, then joins the worker.
    ~SerialQueue() override;

    SerialQueue(const SerialQueue&) = delete;
    SerialQueue& operator=(const SerialQueue&) = delete;

    const std::string& label() const override { return label_; }
    void async(std::function<void()> work) override;
    void sync(const std::function<void()>& work) override;

private:
    void run();

    std::string label_;
    std::mutex mutex_;
    std::condition_variable wake_;
    std::deque<std::function<void()>> pending_;
    bool stopping_ = false;
    std::thread worker_;
};

}  // namespace larkspan
