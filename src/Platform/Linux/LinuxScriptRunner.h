// The ScriptRunner of this desktop. It compiles exactly the five browser scripts of the tab
// tracker and nothing else, and answers them from what the desktop knows.
//
// The browser bridge answers first: when the window in front belongs to a browser process whose
// extension reported a tab, and that report's title agrees with the window's title
// (tabTitleAgrees), the Chromium-family and Firefox scripts get "address|||title" of that tab. A
// report that does not agree is stale (the user moved on before the extension spoke), and a private
// tab's report tells nothing; both are passed over.
//
// Without a bridge answer, Firefox's script is answered as the script itself would:
// "firefox://active|||" and the title of Firefox's front window. The other scripts then fail,
// which means "no tab".
#pragma once

#include <memory>

#include "Platform/BrowserBridge.h"
#include "Platform/Linux/ApplicationWindows.h"
#include "Platform/ScriptRunner.h"

namespace larkspan {

class LinuxScriptRunner final : public ScriptRunner {
public:
    // The identifier under which Firefox's windows are known (see CanonicalIdentifiers.h).
    static constexpr const char* kFirefoxIdentifier = "org.mozilla.firefox";

    // Without `bridge`, no script is answered from a browser extension.
    explicit LinuxScriptRunner(std::shared_ptr<ApplicationWindows> windows,
                               std::shared_ptr<BrowserBridge> bridge = nullptr);

    std::shared_ptr<CompiledScript> compile(const std::string& source) override;
    std::optional<std::string> execute(const CompiledScript& script) override;

private:
    // "address|||title" of the front window's tab as its browser reported it, when it agrees.
    std::optional<std::string> bridgeAnswer();
    std::optional<BrowserTabReport> reportShownIn(const std::string& windowTitle);

    std::shared_ptr<ApplicationWindows> windows_;
    std::shared_ptr<BrowserBridge> bridge_;
};

}  // namespace larkspan
