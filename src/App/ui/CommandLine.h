// Larkspan's command line. --help, --version, --autostart on|off, --(un)install-browser-bridge and
// --install-gnome-extension are answered at once and end the process; an option or argument it does
// not know is refused with a message.
#pragma once

#include <QStringList>

#include <optional>

namespace larkspan {

// Answers `arguments` (the program first). Returns the exit status when the process should end now —
// 0 after --help, --version or a done change, 1 when a change could not be done, 2 for a
// command line it does not understand — or nothing when Larkspan should start.
//
// Qt's own options (-platform, -name, …) are only taken out of the arguments by the application
// object. Before it exists, pass `deferUnknown`: anything unknown then returns nothing, and the
// caller asks again with the application's arguments.
std::optional<int> answerCommandLine(const QStringList& arguments, bool deferUnknown);

// The process's arguments as main() received them.
QStringList argumentList(int argc, char** argv);

}  // namespace larkspan
