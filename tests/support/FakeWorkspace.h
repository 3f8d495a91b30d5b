// A desktop scripted by the test: the frontmost application, window titles per pid, the seconds
// since the last input and the running applications. Thread-safe, since captures read it on the
// monitor queue while the test changes it.
#pragma once

#include <map>

#include "LockedFields.h"
#include "Platform/Workspace.h"

namespace larkspan::test {

class FakeWorkspace final : public Workspace, private LockedFields {
public:
    std::optional<RunningApplication> frontmostApplication() override {
        std::lock_guard lock(mutex_);
        ++frontmostReads_;
        return frontmost_;
    }
    std::vector<RunningApplication> runningApplications() override { return get(running_); }
    std::optional<std::string> focusedWindowTitle(std::int64_t pid) override {
        std::lock_guard lock(mutex_);
        const auto found = titles_.find(pid);
        return found == titles_.end() ? std::nullopt : found->second;
    }
    double secondsSinceLastInput() override { return get(idleSeconds_); }
    void setApplicationActivatedHandler(std::function<void()> handler) override { put(handler_, handler); }
    bool canReadWindows() override { return get(canReadWindows_); }
    void promptForWindowAccess() override {
        std::lock_guard lock(mutex_);
        ++windowAccessPrompts_;
    }

    // Puts `app` in front without an activation notice (as a poll would find it); nothing for none.
    void setFrontmost(std::optional<RunningApplication> app) { put(frontmost_, app); }
    // Puts `app` in front and calls the activation handler, as the desktop does on a switch. Call it
    // on the thread that plays the main thread.
    void activate(RunningApplication app) {
        put(frontmost_, std::optional(app));
        if (const auto handler = get(handler_))
            handler();
    }
    void setTitle(std::int64_t pid, std::optional<std::string> title) {
        std::lock_guard lock(mutex_);
        titles_[pid] = std::move(title);
    }
    void setIdleSeconds(double seconds) { put(idleSeconds_, seconds); }
    void setRunning(std::vector<RunningApplication> apps) { put(running_, apps); }
    bool hasActivationHandler() const { return static_cast<bool>(get(handler_)); }
    void setCanReadWindows(bool granted) { put(canReadWindows_, granted); }
    int windowAccessPrompts() const { return get(windowAccessPrompts_); }
    int frontmostReads() const { return get(frontmostReads_); }

private:
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
