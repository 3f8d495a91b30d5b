#include "App/ui/QmlModule.h"

#include <QQmlEngine>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include "ui/SymbolImageProvider.h"

// Generated with the module; the engine calls it on the first `import Larkspan`.
void qml_register_types_Larkspan();

namespace larkspan {

namespace {

// Referring to the generated registration keeps it in a static link, where an unreferenced object
// file would be dropped and the import would find no C++ types.
void (*volatile const registerTypes)() = &qml_register_types_Larkspan;

bool chooseSceneGraphBackend() {
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND") && qEnvironmentVariableIsEmpty("QSG_RHI_BACKEND"))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    return true;
}

}  // namespace

void prepareQmlEngine(QQmlEngine& engine) {
    [[maybe_unused]] static const bool backendChosen = chooseSceneGraphBackend();
    (void)registerTypes;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    if (!engine.imageProvider(SymbolImageProvider::id))
        engine.addImageProvider(SymbolImageProvider::id, new SymbolImageProvider);
}

}  // namespace larkspan
