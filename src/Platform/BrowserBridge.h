// Tabs reported by Larkspan's browser extension. Each browser process that runs the extension
// reports its focused window's active tab whenever it changes; the bridge keeps the latest report of
// each browser process whose extension is connected.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Platform/Clock.h"

namespace larkspan {

struct BrowserTabReport {
    std::int64_t pid = 0;  // the browser's main process, the owner of its windows
    std::string program;   // file name of the browser's executable ("chromium", "firefox-esr")
    bool isPrivate = false;
    std::string url;    // empty for a private tab
    std::string title;  // empty for a private tab
    Date received = 0;  // seconds since 1970
    bool operator==(const BrowserTabReport&) const = default;
};

class BrowserBridge {
public:
    virtual ~BrowserBridge() = default;
    // The latest report of the browser process `pid`; nothing when it has not reported or its
    // extension is gone. Any thread.
    virtual std::optional<BrowserTabReport> latestReport(std::int64_t pid) = 0;
    // The latest report of every browser process with a connected extension. Any thread.
    virtual std::vector<BrowserTabReport> latestReports() = 0;
};

// Whether a report's tab title is the one a browser window shows. Browsers title a window with the
// active tab's title, then their own name behind a dash: "Page - Chromium", "Page — Mozilla
// Firefox", "Page - Profile 2 - Google Chrome". So the two agree when the window title is the tab
// title exactly, or the tab title followed by " - ", " – " or " — " and more. Both are compared
// without surrounding blanks; an empty tab title agrees with nothing, as it says nothing about which
// tab is shown.
bool tabTitleAgrees(std::string_view tabTitle, std::string_view windowTitle);

}  // namespace larkspan
