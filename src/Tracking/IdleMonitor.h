// How long the user has been without input, and how long a silence must last before it counts as
// an absence. Watching a film or reading a long page in a browser or media player is quiet, so those
// applications get a longer allowance.
#pragma once

#include <optional>
#include <string>

#include "Platform/Workspace.h"

namespace larkspan {

class IdleMonitor {
public:
    // `workspace` must outlive the monitor.
    explicit IdleMonitor(Workspace& workspace) : workspace_(workspace) {}

    // Seconds since the last key, pointer-motion or wheel input.
    double secondsSinceLastInput() const { return workspace_.secondsSinceLastInput(); }

    // Seconds of silence after which a capture with `bundleID` in front is idle: 300 for the
    // identifiers that begin with a browser or media-player prefix, else (and when absent) 120.
    static double idleThreshold(const std::optional<std::string>& bundleID);

    static constexpr double defaultThreshold = 120.0;  // seconds
    static constexpr double mediaThreshold = 300.0;    // seconds

private:
    Workspace& workspace_;
};

}  // namespace larkspan
