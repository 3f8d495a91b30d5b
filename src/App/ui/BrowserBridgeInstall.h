// The command-line options that set up the browser bridge for the user's browsers:
// `--install-browser-bridge` writes the native messaging host manifests of Firefox, Chromium, Google
// Chrome, Brave, Microsoft Edge and Vivaldi, naming the larkspan-browser-host installed with this
// executable; `--uninstall-browser-bridge` removes them. Each says per browser what it did.
#pragma once

#include <optional>

namespace larkspan {

// The exit status when the command line is exactly one of the two options; nothing otherwise,
// and the tracker starts as usual.
std::optional<int> runBrowserBridgeOption(int argc, char** argv);

}  // namespace larkspan
