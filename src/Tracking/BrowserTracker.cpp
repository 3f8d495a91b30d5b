#include "Tracking/BrowserTracker.h"

#include <uriparser/Uri.h>

#include "Platform/TabScripts.h"
#include "Platform/TrimBlanks.h"

namespace larkspan {

namespace {

constexpr std::string_view kSeparator = "|||";
constexpr const char* kFallbackBrowserName = "Google Chrome";

// "address|||title" as a tab; further parts are dropped, so a title holding "|||" ends there.
std::optional<TabInfo> parseTabAnswer(std::string_view answer) {
    const auto first = answer.find(kSeparator);
    if (first == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view rest = answer.substr(first + kSeparator.size());
    const std::string_view title = rest.substr(0, rest.find(kSeparator));
    TabInfo tab;
    tab.url = std::string(trimBlanks(answer.substr(0, first)));
    tab.title = std::string(trimBlanks(title));
    tab.domain = BrowserTracker::extractDomain(tab.url);
    return tab;
}

}  // namespace

BrowserTracker::BrowserTracker(ScriptRunner& runner, Workspace& workspace, const Clock& clock)
    : runner_(runner), workspace_(workspace), clock_(clock) {}

const std::set<std::string, std::less<>>& BrowserTracker::browserBundleIDs() {
    static const std::set<std::string, std::less<>> ids = {
        "com.apple.Safari",        "com.google.Chrome",          "com.google.Chrome.canary",
        "org.mozilla.firefox",     "company.thebrowser.Browser", "com.brave.Browser",
        "com.brave.Browser.beta",  "com.microsoft.edgemac",      "com.microsoft.edgemac.Beta",
        "com.operasoftware.Opera", "com.vivaldi.Vivaldi",        "com.kagi.kagimacOS",
    };
    return ids;
}

bool BrowserTracker::isBrowser(std::string_view bundleID) {
    return browserBundleIDs().contains(bundleID);
}

std::optional<TabInfo> BrowserTracker::getActiveTab(const std::string& bundleID) {
    const Date now = clock_.now();
    if (auto cached = cache_.find(bundleID);
        cached != cache_.end() && now - cached->second.time < cacheLifetime) {
        return cached->second.info;
    }
    auto fetched = fetchTabInfo(bundleID);
    if (!fetched) {
        return std::nullopt;
    }
    cache_[bundleID] = CachedTab{*fetched, now};
    return fetched;
}

std::string BrowserTracker::tabScript(const std::string& bundleID) {
    if (bundleID == "com.apple.Safari")
        return std::string(kSafariTabScript);
    if (bundleID == "org.mozilla.firefox")
        return std::string(kFirefoxTabScript);
    if (bundleID == "company.thebrowser.Browser")
        return std::string(kArcTabScript);
    if (bundleID == "com.kagi.kagimacOS")
        return std::string(kOrionTabScript);
    for (const auto& app : workspace_.runningApplications()) {
        if (app.bundleID == bundleID) {
            return chromiumFamilyTabScript(app.localizedName.value_or(kFallbackBrowserName));
        }
    }
    return chromiumFamilyTabScript(kFallbackBrowserName);
}

std::shared_ptr<CompiledScript> BrowserTracker::compiledScript(const std::string& source) {
    if (auto found = compiledScripts_.find(source); found != compiledScripts_.end()) {
        return found->second;
    }
    auto script = runner_.compile(source);
    if (script) {
        compiledScripts_.emplace(source, script);
    }
    return script;
}

std::optional<TabInfo> BrowserTracker::fetchTabInfo(const std::string& bundleID) {
    const auto script = compiledScript(tabScript(bundleID));
    if (!script) {
        return std::nullopt;
    }
    const auto answer = runner_.execute(*script);
    if (!answer) {
        return std::nullopt;
    }
    return parseTabAnswer(*answer);
}

std::string BrowserTracker::extractDomain(std::string_view text) {
    UriUriA uri;
    const char* errorPos = nullptr;
    if (uriParseSingleUriExA(&uri, text.data(), text.data() + text.size(), &errorPos) != URI_SUCCESS) {
        return std::string(text);
    }
    std::string host;
    const bool hasHost = uri.hostText.first != nullptr && uri.hostText.afterLast != uri.hostText.first;
    if (hasHost) {
        host.assign(uri.hostText.first, uri.hostText.afterLast);
    }
    uriFreeUriMembersA(&uri);
    if (!hasHost) {
        return std::string(text);
    }
    if (host.starts_with("www.")) {
        host.erase(0, 4);
    }
    return host;
}

}  // namespace larkspan
