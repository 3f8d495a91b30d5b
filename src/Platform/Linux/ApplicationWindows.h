// What the browser scripts ask of the desktop: the window in front and an application's front
// window. A separate interface so that the script runner can be tested without a display.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace larkspan {

struct FrontWindow {
    std::int64_t pid = 0;  // of the process that owns the window; 0 when the desktop does not say
    std::string title;
};

class ApplicationWindows {
public:
    virtual ~ApplicationWindows() = default;
    // The focused window with its owner and title; nothing when no window is focused or the windows
    // cannot be read. Any thread.
    virtual std::optional<FrontWindow> frontWindow() = 0;
    // Title of the topmost window of the application with this identifier; nothing when it has no
    // window or the windows cannot be read. Any thread.
    virtual std::optional<std::string> frontWindowTitle(const std::string& bundleID) = 0;
};

}  // namespace larkspan
