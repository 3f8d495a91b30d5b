// Desktop notifications: a banner, no sound.
#pragma once

#include <string>

namespace larkspan {

class Notifier {
public:
    virtual ~Notifier() = default;
    // Shows a banner. A later notification with the same `id` may replace an earlier one.
    // Failures (no notification daemon) are swallowed.
    virtual void notify(const std::string& id, const std::string& title, const std::string& body) = 0;
};

}  // namespace larkspan
