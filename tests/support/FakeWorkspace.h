// A desktop scripted by the test: the frontmost application, window titles per pid, the seconds
// since the last input and the running applications. Thread-safe, since captures read it on the
// monitor queue while the test changes it.
#pragma once

#include <map>
#include <mutex>

#include "Platform/Workspace.h"

namespace larkspan::test {

class FakeWorkspace final : public Workspace {
public:
    std::optional<RunningApplication> frontmostApplication() override {
        return locked([&] {
            ++frontmostReads_;
            return frontmost_;
        });
    }
    std::vector<RunningApplication> runningApplications() override {
        return locked([&] { return running_; });
    }
    std::optional<std::string> focusedWindowTitle(std::int64_t pid) override {
        return locked([&] {
            auto found = titles_.find(pid);
            return found == titles_.end() ? std::nullopt : found->second;
        });
    }
    double secondsSinceLastInput() override {
        return locked([&] { return idleSeconds_; });
    }
    void setApplicationActivatedHandler(std::function<void()> handler) override {
        locked([&] { handler_ = std::move(handler); });
    }
    bool canReadWindows() override {
        return locked([&] { return canReadWindows_; });
    }
    void promptForWindowAccess() override {
        locked([&] { ++windowAccessPrompts_; });
    }

    // Puts `app` in front without an activation notice (as a poll would find it); nothing for none.
    void setFrontmost(std::optional<RunningApplication> app) {
        locked([&] { frontmost_ = std::move(app); });
    }
    // Puts `app` in front and calls the activation handler, as the desktop does on a switch. Call it
    // on the thread that plays the main thread.
    void activate(RunningApplication app) {
        const auto handler = locked([&] {
            frontmost_ = std::move(app);
            return handler_;
        });
        if (handler)
            handler();
    }
    void setTitle(std::int64_t pid, std::optional<std::string> title) {
        locked([&] { titles_[pid] = std::move(title); });
    }
    void setIdleSeconds(double seconds) {
        locked([&] { idleSeconds_ = seconds; });
    }
    void setRunning(std::vector<RunningApplication> apps) {
        locked([&] { running_ = std::move(apps); });
    }
    bool hasActivationHandler() const {
        return locked([&] { return static_cast<bool>(handler_); });
    }
    void setCanReadWindows(bool granted) {
        locked([&] { canReadWindows_ = granted; });
    }
    int windowAccessPrompts() const {
        return locked([&] { return windowAccessPrompts_; });
    }
    int frontmostReads() const {
        return locked([&] { return frontmostReads_; });
    }

private:
    template <typename Work>
    auto locked(Work work) const -> decltype(work()) {
        std::lock_guard lock(mutex_);
        return work();
    }

    mutable std::mutex mutex_;
    std::optional<RunningApplication> frontmost_;
    bool canReadWindows_ = true;
    int windowAccessPrompts_ = 0;
    std::vector<RunningApplication> running_;
    std::map<std::int64_t, std::optional<std::string>> titles_;
    double idleSeconds_ = 0;
    std::function<void()> handler_;
    int frontmostReads_ = 0;
};

}  // namespace larkspan::test
