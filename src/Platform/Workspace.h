// What the desktop shows: the frontmost application, its focused window title, and how long the
// user has been without input. Implemented over X11; tests use a scripted fake.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace larkspan {

struct RunningApplication {
    std::optional<std::string> bundleID;       // stable application identifier
    std::optional<std::string> localizedName;  // name for the user's language
    std::int64_t pid = 0;
};

class Workspace {
public:
    virtual ~Workspace() = default;

    // The application in front, or nothing (no window focused, no display). Any thread.
    virtual std::optional<RunningApplication> frontmostApplication() = 0;
    // Every application with a managed window. Any thread.
    virtual std::vector<RunningApplication> runningApplications() = 0;
    // Title of the focused window of `pid`; absent when it cannot be read. An empty title
    // stays empty. Any thread.
    virtual std::optional<std::string> focusedWindowTitle(std::int64_t pid) = 0;
    // Seconds since the last key, pointer or wheel input. Any thread.
    virtual double secondsSinceLastInput() = 0;

    // `handler` runs on the main thread each time another application becomes active. One handler;
    // a later call replaces it, an empty function removes it.
    virtual void setApplicationActivatedHandler(std::function<void()> handler) = 0;

    // Whether window titles can be read in this session.
    virtual bool canReadWindows() = 0;
    // Tells the user what window tracking needs. Called at most once in 7 days.
    virtual void promptForWindowAccess() = 0;
};

}  // namespace larkspan
