// Seconds since the last user input, from the MIT-SCREEN-SAVER extension. The server counts every
// key, pointer move, click and wheel step, including synthetic input from XTest.
#pragma once

#include <optional>

namespace larkspan {

class XcbConnection;

// Seconds since the last input on `connection`'s display; nothing when the server lacks the
// extension or cannot answer.
std::optional<double> screenSaverIdleSeconds(XcbConnection& connection);

}  // namespace larkspan
