// Serves the symbols of the Icons table tinted in any colour to QML images, as
// "image://symbol/<name>/<aarrggbb>". Images are drawn at the requested size (which Qt Quick scales
// by the screen's pixel ratio), so symbols stay crisp at every size.
#pragma once

#include <QColor>
#include <QQuickImageProvider>
#include <QUrl>

namespace larkspan {

class SymbolImageProvider final : public QQuickImageProvider {
public:
    static constexpr const char* id = "symbol";

    SymbolImageProvider() : QQuickImageProvider(QQuickImageProvider::Image) {}

    // The image URL of symbol `name` in `color`.
    static QUrl url(const QString& name, const QColor& color);

    // A null image for an unknown name or a malformed colour. Without a requested size the symbol is
    // drawn at its design size of 24 pixels.
    QImage requestImage(const QString& imageId, QSize* size, const QSize& requestedSize) override;
};

}  // namespace larkspan
