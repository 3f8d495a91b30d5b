#include "Tracking/IdleMonitor.h"

#include <array>
#include <string_view>

#include "Platform/AppRoles.h"

namespace larkspan {

namespace {

// A prefix test, so variants such as "com.google.Chrome.canary" count too.
constexpr std::array<std::string_view, 17> kLongSilencePrefixes = {
    "com.apple.Safari",  "com.google.Chrome",     "org.mozilla.firefox", "company.thebrowser.Browser",
    "com.brave.Browser", "com.microsoft.edgemac", "com.opera.Opera",     "com.vivaldi.Vivaldi",
    "com.orion.Orion",   "com.apple.TV",          "com.netflix.Netflix", "io.mpv.mpv",
    "org.videolan.vlc",  "com.spotify.client",    "com.apple.Music",     app_role::video,
    app_role::music,
};

}  // namespace

double IdleMonitor::idleThreshold(const std::optional<std::string>& bundleID) {
    if (!bundleID) {
        return defaultThreshold;
    }
    for (std::string_view prefix : kLongSilencePrefixes) {
        if (bundleID->starts_with(prefix)) {
            return mediaThreshold;
        }
    }
    return defaultThreshold;
}

}  // namespace larkspan
