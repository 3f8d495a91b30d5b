// Makes the `Larkspan` QML module (every view and controller of src/*/ui/, and the shared kit of src/ui/)
// usable in a QML engine. The module is linked statically, without a plugin: its types register
// themselves the first time an engine imports `Larkspan`, and its files live in the resources under
// qrc:/qt/qml/Larkspan/.
#pragma once

class QQmlEngine;

namespace larkspan {

// Adds the module's import path and the symbol image provider to `engine`. Call once per engine,
// before loading any view; calling it again is harmless.
//
// The first call, which must come before any Qt Quick window exists, also has every window drawn
// by Qt Quick's software renderer unless QT_QUICK_BACKEND or QSG_RHI_BACKEND asks for another. The
// windows are small, mostly still and redrawn in part; an OpenGL context would bring its driver
// (without a GPU, Mesa's llvmpipe with LLVM) and keep tens of megabytes for the tracker's whole life.
void prepareQmlEngine(QQmlEngine& engine);

}  // namespace larkspan
