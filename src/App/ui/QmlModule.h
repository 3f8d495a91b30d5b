// Makes the `Larkspan` QML module (every view and controller of src/*/ui/, and the shared kit of src/Ui/)
// usable in a QML engine. The module is linked statically, without a plugin: its types register
// themselves the first time an engine imports `Larkspan`, and its files live in the resources under
// qrc:/qt/qml/Larkspan/.
#pragma once

class QQmlEngine;

namespace larkspan {

// Adds the module's import path and the symbol image provider to `engine`. Call once per engine,
// before loading any view; calling it again is harmless.
void prepareQmlEngine(QQmlEngine& engine);

}  // namespace larkspan
