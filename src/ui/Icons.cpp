#include "ui/Icons.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include "ui/SymbolImageProvider.h"

namespace larkspan {

namespace {

struct Symbol {
    const char* name;
    const char* themeName;  // freedesktop icon naming, as the common themes spell it
};

constexpr Symbol symbols[] = {
    {"app.badge", "application-x-executable"},
    {"arrow.counterclockwise.circle", "edit-undo"},
    {"arrow.right", "go-next"},
    {"brain.head.profile", "applications-science"},
    {"calendar", "x-office-calendar"},
    {"chart.bar.fill", "office-chart-bar"},
    {"chart.bar.xaxis", "view-statistics"},
    {"checklist", "view-list-ordered"},
    {"checkmark.circle", "object-select"},
    {"checkmark.circle.fill", "emblem-ok"},
    {"chevron.left", "go-previous"},
    {"chevron.right", "go-next"},
    {"circle", "radio"},
    {"circle.fill", "media-record"},
    {"clock", "preferences-system-time"},
    {"clock.badge.questionmark", "appointment-missed"},
    {"clock.fill", "appointment-soon"},
    {"exclamationmark.circle.fill", "dialog-warning"},
    {"forward.end", "media-skip-forward"},
    {"gearshape", "preferences-system"},
    {"gearshape.fill", "preferences-system"},
    {"globe", "web-browser"},
    {"list.bullet", "view-list-bullet"},
    {"moon.zzz.fill", "weather-clear-night"},
    {"pause.fill", "media-playback-pause"},
    {"pencil", "document-edit"},
    {"pencil.circle.fill", "document-edit"},
    {"play.fill", "media-playback-start"},
    {"plus.circle.fill", "list-add"},
    {"questionmark.circle.fill", "dialog-question"},
    {"scope", "find-location"},
    {"stop.fill", "media-playback-stop"},
    {"timeline.selection", "view-continuous"},
    {"timer", "alarm"},
    {"trash", "user-trash"},
    {"xmark", "window-close"},
    {"xmark.circle.fill", "edit-clear"},
};

const Symbol* find(const QString& name) {
    for (const Symbol& symbol : symbols)
        if (name == QLatin1String(symbol.name))
            return &symbol;
    return nullptr;
}

}  // namespace

QStringList Icons::names() {
    QStringList result;
    for (const Symbol& symbol : symbols)
        result.append(QLatin1String(symbol.name));
    return result;
}

QString Icons::resourcePath(const QString& name) {
    const Symbol* symbol = find(name);
    return symbol ? QStringLiteral(":/qt/qml/Larkspan/icons/%1.svg").arg(QLatin1String(symbol->name))
                  : QString();
}

QIcon Icons::icon(const QString& name) {
    const Symbol* symbol = find(name);
    if (!symbol)
        return {};
    return QIcon::fromTheme(QLatin1String(symbol->themeName), QIcon(resourcePath(name)));
}

QImage Icons::render(const QString& name, const QColor& color, int size, qreal devicePixelRatio) {
    const QString path = resourcePath(name);
    const int pixels = qRound(size * devicePixelRatio);
    if (path.isEmpty() || pixels <= 0)
        return {};
    QSvgRenderer renderer(path);
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(0, 0, pixels, pixels));
    // Keep the drawn shape's coverage, replace its colour.
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    painter.end();
    image.setDevicePixelRatio(devicePixelRatio);
    return image;
}

QUrl Icons::source(const QString& name) const {
    const QString path = resourcePath(name);
    return path.isEmpty() ? QUrl() : QUrl(QLatin1String("qrc") + path);
}

QString Icons::themeName(const QString& name) const {
    const Symbol* symbol = find(name);
    return symbol ? QLatin1String(symbol->themeName) : QString();
}

QUrl Icons::tintedSource(const QString& name, const QColor& color) const {
    return find(name) ? SymbolImageProvider::url(name, color) : QUrl();
}

}  // namespace larkspan
