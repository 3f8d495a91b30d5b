// `larkspan --install-gnome-extension`: copies the GNOME Shell extension that reports the focused
// window into the user's extensions folder, in the flavour the installed Shell loads (GNOME 45
// moved extensions to ES modules).
#pragma once

#include <filesystem>
#include <string>

namespace larkspan {

// Major version of the installed GNOME Shell (`gnome-shell --version`); 0 when unknown.
int gnomeShellMajorVersion();

// Writes the extension to `extensionsDir`/<uuid>, replacing an older copy. `shellMajor` 0 means
// unknown and picks the modern flavour. Returns the folder written; throws std::runtime_error with
// the reason when a file cannot be written.
std::filesystem::path installGnomeExtension(const std::filesystem::path& extensionsDir, int shellMajor);

// The command: installs into $XDG_DATA_HOME/gnome-shell/extensions, prints what to do next, and
// returns the process exit status.
int runInstallGnomeExtension();

}  // namespace larkspan
