// The command-line options that set up the browser bridge for the user's browsers:
// `--install-browser-bridge` writes the native messaging host manifests of Firefox, Chromium, Google
// Chrome, Brave, Microsoft Edge and Vivaldi, naming the larkspan-browser-host installed with this
// executable; `--uninstall-browser-bridge` removes them. Each says per browser what it did.
#pragma once

namespace larkspan {

// Installs (or removes) the manifests and says per browser what it did; the exit status.
int changeBrowserBridge(bool install);

}  // namespace larkspan
