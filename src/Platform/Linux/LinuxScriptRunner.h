// The ScriptRunner of this desktop. It compiles exactly the five browser scripts of the tab
// tracker and nothing else. Firefox's script is answered from the desktop as the script would
// answer: "firefox://active|||" and the title of Firefox's front window. The other browsers can only
// be asked through a browser extension; without one their scripts fail, which means "no tab".
#pragma once

#include <memory>

#include "Platform/Linux/ApplicationWindows.h"
#include "Platform/ScriptRunner.h"

namespace larkspan {

class LinuxScriptRunner final : public ScriptRunner {
public:
    // The identifier under which Firefox's windows are known (see CanonicalIdentifiers.h).
    static constexpr const char* kFirefoxIdentifier = "org.mozilla.firefox";

    explicit LinuxScriptRunner(std::shared_ptr<ApplicationWindows> windows);

    std::shared_ptr<CompiledScript> compile(const std::string& source) override;
    // Firefox: "firefox://active|||" + the front window's title, or "firefox://active|||Firefox"
    // when Firefox has no window (the script's error branch). Any other script: nothing.
    std::optional<std::string> execute(const CompiledScript& script) override;

private:
    std::shared_ptr<ApplicationWindows> windows_;
};

}  // namespace larkspan
