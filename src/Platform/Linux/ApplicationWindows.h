// The one question the browser scripts ask of the desktop: the title of an application's front
// window. A separate interface so that the script runner can be tested without a display.
#pragma once

#include <optional>
#include <string>

namespace larkspan {

class ApplicationWindows {
public:
    virtual ~ApplicationWindows() = default;
    // Title of the topmost window of the application with this identifier; nothing when it has no
    // window or the windows cannot be read. Any thread.
    virtual std::optional<std::string> frontWindowTitle(const std::string& bundleID) = 0;
};

}  // namespace larkspan
