// Asks the browser in front for the address and title of its active tab.
//
// A small script per browser family is compiled once (the compile cache is keyed by the script's
// text and never emptied) and run on each fetch; its answer is "address|||title". The last good
// answer per browser is served again for 3 seconds, which absorbs the extra captures that
// application switches cause between the 4-second polls. Both caches are bounded by the number of
// browsers seen.
//
// Not thread-safe by design: only the monitor queue calls in, and that serial queue is the lock.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "Platform/Clock.h"
#include "Platform/ScriptRunner.h"
#include "Platform/Workspace.h"
#include "Tracking/ActivityRecord.h"

namespace larkspan {

class BrowserTracker {
public:
    // The seams must outlive the tracker.
    BrowserTracker(ScriptRunner& runner, Workspace& workspace, const Clock& clock);

    // The identifiers of the browsers whose tabs can be read; fixed, shared by all instances.
    static const std::set<std::string, std::less<>>& browserBundleIDs();
    // Exact membership in browserBundleIDs().
    static bool isBrowser(std::string_view bundleID);

    // The active tab of the browser `bundleID`, from the cache while its entry is younger than
    // cacheLifetime, else freshly fetched. Nothing when the fetch fails; a stale entry is then not
    // served, and it stays as it was.
    std::optional<TabInfo> getActiveTab(const std::string& bundleID);

    // The host of `text` read as an address, without a leading "www."; `text` itself, unchanged,
    // when it does not parse or has no host. The host's case is kept.
    static std::string extractDomain(std::string_view text);

    // The script text that asks `bundleID` for its tab. Browsers without a script of their own get
    // the Chromium-family text, named after the first running application with that identifier, or
    // "Google Chrome" when there is none or it has no name.
    std::string tabScript(const std::string& bundleID);

    static constexpr double cacheLifetime = 3.0;  // seconds

private:
    struct CachedTab {
        TabInfo info;
        Date time;
    };

    // The compiled script for `source`, compiling it on first use. A failed compile is not
    // remembered, so the next call tries again.
    std::shared_ptr<CompiledScript> compiledScript(const std::string& source);
    std::optional<TabInfo> fetchTabInfo(const std::string& bundleID);

    ScriptRunner& runner_;
    Workspace& workspace_;
    const Clock& clock_;
    std::map<std::string, std::shared_ptr<CompiledScript>> compiledScripts_;
    std::map<std::string, CachedTab> cache_;
};

}  // namespace larkspan
