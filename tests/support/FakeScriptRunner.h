// A script runner whose answer the test chooses. It counts runs, can refuse to compile,
// and can hold every run until the test releases it, to stand in for a browser that does not answer.
// Thread-safe.
#pragma once

#include <condition_variable>

#include "LockedFields.h"
#include "Platform/ScriptRunner.h"

namespace larkspan::test {

class FakeScriptRunner final : public ScriptRunner, private LockedFields {
public:
    std::shared_ptr<CompiledScript> compile(const std::string&) override {
        return get(refuseCompiles_) ? nullptr : std::make_shared<CompiledScript>();
    }

    std::optional<std::string> execute(const CompiledScript&) override {
        std::unique_lock lock(mutex_);
        ++runs_;
        if (holding_) {
            ++waiting_;
            changed_.notify_all();
            changed_.wait(lock, [this] { return !holding_; });
            --waiting_;
        }
        return answer_;
    }

    // Answers every script with `text`; nothing makes the run fail.
    void answerAlways(std::optional<std::string> text) { put(answer_, text); }
    void refuseCompiles(bool refuse) { put(refuseCompiles_, refuse); }
    // While held, every run blocks until release().
    void hold() { put(holding_, true); }
    void release() {
        put(holding_, false);
        changed_.notify_all();
    }
    // Waits until a run is blocked in hold().
    void waitUntilBlocked() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return waiting_ > 0; });
    }
    int blockedRuns() const { return get(waiting_); }
    int runCount() const { return get(runs_); }

private:
    std::condition_variable changed_;
    std::optional<std::string> answer_;
    bool refuseCompiles_ = false;
    bool holding_ = false;
    int waiting_ = 0;
    int runs_ = 0;
};

}  // namespace larkspan::test
