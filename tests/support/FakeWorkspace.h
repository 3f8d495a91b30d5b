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
        std::lock_guard lock(mutex_);
        ++frontmostReads_;
        return frontmost_;
    }
    std::vector<RunningApplication> runningApplications() override {
        std::lock_guard lock(mutex_);
        return running_;
    }
    std::optional<std::string> focusedWindowTitle(std::int64_t pid) override {
        std::lock_guard lock(mutex_);
        auto found = titles_.find(pid);
        return found == titles_.end() ? std::nullopt : found->second;
    }
    double secondsSinceLastInput() override {
        std::lock_guard lock(mutex_);
        return idleSeconds_;
    }
    void setApplicationActivatedHandler(std::function<void()> handler) override {
        std::lock_guard lock(mutex_);
        handler_ = std::move(handler);
    }
    bool canReadWindows() override {
        std::lock_guard lock(mutex_);
        return canReadWindows_;
    }
    void promptForWindowAccess() override {
        std::lock_guard lock(mutex_);
        ++windowAccessPrompts_;
    }

    // Puts `app` in front without an activation notice (as a poll would find it); nothing for none.
    void setFrontmost(std::optional<RunningApplication> app) {
        std::lock_guard lock(mutex_);
        frontmost_ = std::move(app);
    }
    // Puts `app` in front and calls the activation handler, as the desktop does on a switch. Call it
    // on the thread that plays the main thread.
    void activate(RunningApplication app) {
        std::function<void()> handler;
        {
            std::lock_guard lock(mutex_);
            frontmost_ = std::move(app);
            handler = handler_;
        }
        if (handler)
            handler();
    }
    void setTitle(std::int64_t pid, std::optional<std::string> title) {
        std::lock_guard lock(mutex_);
        titles_[pid] = std::move(title);
    }
    void setIdleSeconds(double seconds) {
        std::lock_guard lock(mutex_);
        idleSeconds_ = seconds;
    }
    void setRunning(std::vector<RunningApplication> apps) {
        std::lock_guard lock(mutex_);
        running_ = std::move(apps);
    }
    bool hasActivationHandler() const {
        std::lock_guard lock(mutex_);
        return static_cast<bool>(handler_);
    }
    void setCanReadWindows(bool granted) {
        std::lock_guard lock(mutex_);
        canReadWindows_ = granted;
    }
    int windowAccessPrompts() const {
        std::lock_guard lock(mutex_);
        return windowAccessPrompts_;
    }
    int frontmostReads() const {
        std::lock_guard lock(mutex_);
        return frontmostReads_;
    }

private:
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
