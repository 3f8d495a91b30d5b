#include "ui/SymbolImageProvider.h"

#include "ui/Icons.h"

namespace larkspan {

namespace {

constexpr int designSize = 24;  // pixels, the SVGs' view box

}  // namespace

QUrl SymbolImageProvider::url(const QString& name, const QColor& color) {
    return QUrl(QStringLiteral("image://%1/%2/%3")
                    .arg(QLatin1String(id), name)
                    .arg(color.rgba(), 8, 16, QLatin1Char('0')));
}

QImage SymbolImageProvider::requestImage(const QString& imageId, QSize* size, const QSize& requestedSize) {
    const qsizetype slash = imageId.lastIndexOf(QLatin1Char('/'));
    bool validColor = false;
    const QRgb rgba = imageId.mid(slash + 1).toUInt(&validColor, 16);
    if (slash < 0 || !validColor)
        return {};
    int side = designSize;
    if (requestedSize.width() > 0 || requestedSize.height() > 0)
        side = qMax(requestedSize.width(), requestedSize.height());
    const QImage image = Icons::render(imageId.left(slash), QColor::fromRgba(rgba), side);
    if (size)
        *size = image.size();
    return image;
}

}  // namespace larkspan
