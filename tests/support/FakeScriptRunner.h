// A script runner whose answers the test chooses per script text. It counts compiles and runs, can
// refuse to compile, and can hold every run until the test releases it, to stand in for a browser
// that does not answer. Thread-safe.
#pragma once

#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>

#include "Platform/ScriptRunner.h"

namespace larkspan::test {

class FakeScriptRunner final : public ScriptRunner {
public:
    // The answer for a script compiled from `source`; nothing makes the run fail.
    using Answer = std::function<std::optional<std::string>(const std::string& source)>;

    std::shared_ptr<CompiledScript> compile(const std::string& source) override {
        return locked([&] {
            ++compiles_;
            return refuseCompiles_ ? nullptr : std::make_shared<Script>(source);
        });
    }

    std::optional<std::string> execute(const CompiledScript& script) override {
        std::unique_lock lock(mutex_);
        ++runs_;
        if (holding_) {
            ++waiting_;
            changed_.notify_all();
            changed_.wait(lock, [this] { return !holding_; });
            --waiting_;
        }
        const auto& source = static_cast<const Script&>(script).source;
        auto answer = answer_;
        lock.unlock();
        return answer ? answer(source) : std::nullopt;
    }

    // Answers every script with `text`.
    void answerAlways(std::optional<std::string> text) {
        locked([&] { answer_ = [text](const std::string&) { return text; }; });
    }
    void refuseCompiles(bool refuse) {
        locked([&] { refuseCompiles_ = refuse; });
    }
    // While held, every run blocks until release().
    void hold() {
        locked([&] { holding_ = true; });
    }
    void release() {
        locked([&] { holding_ = false; });
        changed_.notify_all();
    }
    // Waits until a run is blocked in hold().
    void waitUntilBlocked() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return waiting_ > 0; });
    }
    int blockedRuns() const {
        return locked([&] { return waiting_; });
    }
    int compileCount() const {
        return locked([&] { return compiles_; });
    }
    int runCount() const {
        return locked([&] { return runs_; });
    }

private:
    template <typename Work>
    auto locked(Work work) const -> decltype(work()) {
        std::lock_guard lock(mutex_);
        return work();
    }

    struct Script final : CompiledScript {
        explicit Script(std::string text) : source(std::move(text)) {}
        std::string source;
    };

    mutable std::mutex mutex_;
    std::condition_variable changed_;
    Answer answer_;
    bool refuseCompiles_ = false;
    bool holding_ = false;
    int waiting_ = 0;
    int compiles_ = 0;
    int runs_ = 0;
};

}  // namespace larkspan::test
