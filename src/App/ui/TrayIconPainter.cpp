#include "App/ui/TrayIconPainter.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include "Classification/Palette.h"
#include "ui/QtConversion.h"

namespace larkspan {

namespace {

// Colour emoji fonts carry large bitmaps whose glyph sits off-centre in its line box. Rendering big,
// cropping to the drawn pixels and scaling down gives a glyph that fills and centres in any box.
QImage croppedEmoji(const QString& text) {
    constexpr int kCanvas = 160;
    QImage canvas(kCanvas, kCanvas, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    {
        QPainter painter(&canvas);
        QFont font("Noto Color Emoji");
        font.setPixelSize(kCanvas / 2);
        painter.setFont(font);
        painter.setPen(Qt::black);  // a monochrome fallback glyph needs a pen to show at all
        painter.drawText(canvas.rect(), Qt::AlignCenter, text);
    }
    QRect drawn;
    for (int y = 0; y < kCanvas; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(canvas.constScanLine(y));
        for (int x = 0; x < kCanvas; ++x) {
            if (qAlpha(line[x]) > 8)
                drawn |= QRect(x, y, 1, 1);
        }
    }
    return drawn.isEmpty() ? QImage() : canvas.copy(drawn);
}

void drawEmoji(QPainter& painter, const QString& text, const QRectF& box) {
    const QImage glyph = croppedEmoji(text);
    if (glyph.isNull())
        return;
    const QSizeF fitted = QSizeF(glyph.size()).scaled(box.size(), Qt::KeepAspectRatio);
    const QRectF target(box.center().x() - fitted.width() / 2, box.center().y() - fitted.height() / 2,
                        fitted.width(), fitted.height());
    painter.drawImage(target, glyph);
}

}  // namespace

QString TrayIconPainter::badgeText(int count) {
    return count > 99 ? QStringLiteral("99+") : QString::number(count);
}

QImage TrayIconPainter::paint(const TrayIconContent& content, int size, qreal devicePixelRatio) {
    const int pixels = qRound(size * devicePixelRatio);
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(devicePixelRatio);
    image.fill(Qt::transparent);

    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    const qreal s = size;
    const qreal inset = s / 16;  // panels pad icons little; leave a hair of air around the glyph
    drawEmoji(painter, content.emoji, QRectF(inset, inset, s - 2 * inset, s - 2 * inset));

    if (!content.timerMark.isEmpty()) {
        // Bottom-left, a little over half the icon: large enough to tell a tomato from a cup at 16 px.
        // Paused shows faded; the tooltip's title says so in words.
        const qreal d = s * 0.56;
        painter.setOpacity(content.timerPaused ? 0.6 : 1.0);
        drawEmoji(painter, content.timerMark, QRectF(0, s - d, d, d));
        painter.setOpacity(1.0);
    }

    if (content.pendingCount > 0) {
        // Top-right: an orange pill that grows with the digits.
        const QString text = badgeText(content.pendingCount);
        QFont font;
        font.setBold(true);
        font.setPixelSize(qMax(7, qRound(s * 0.4)));
        const qreal h = qMax(s * 0.5, 8.0);
        const qreal w = qMin(s, qMax(h, QFontMetricsF(font).horizontalAdvance(text) + h * 0.4));
        const QRectF pill(s - w, 0, w, h);
        painter.setPen(Qt::NoPen);
        painter.setBrush(toQColor(Palette::orange));
        painter.drawRoundedRect(pill, h / 2, h / 2);
        painter.setPen(toQColor(Palette::white));
        painter.setFont(font);
        painter.drawText(pill, Qt::AlignCenter, text);
    }
    return image;
}

QIcon TrayIconPainter::icon(const TrayIconContent& content) {
    QIcon icon;
    for (int size : {16, 22, 24, 32, 48, 64}) {
        icon.addPixmap(QPixmap::fromImage(paint(content, size)));
    }
    return icon;
}

}  // namespace larkspan
