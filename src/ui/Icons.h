// The symbols the screens show, by name ("play.fill", "chevron.left"), in one table: each has a
// freedesktop icon-theme name and a bundled SVG (24x24, one colour, drawn to be tinted). No other file
// writes an icon name; views ask this table through the `Icons` QML singleton or use `SymbolIcon`.
//
// Tinted use always draws the bundled SVG. Theme icons cannot be tinted reliably: most are full-colour
// (a tint flattens them into silhouettes), the one-colour "-symbolic" variants exist only in some themes
// and in other shapes and weights, and Qt does not recolour them. A consistent look wins over theme use,
// so the theme name serves only untinted places that should look native, such as menu entries (icon()).
// A Qt Quick control shows a symbol the same way: `icon.source: Icons.source("play.fill")` with
// `icon.color` (the control tints the drawing); `icon.name` would pick the untintable theme icon.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QIcon>
#include <QImage>
#include <QObject>
#include <QStringList>
#include <QUrl>

namespace larkspan {

class Icons final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    explicit Icons(QObject* parent = nullptr) : QObject(parent) {}

    // Every symbol name of the table, in table order.
    static QStringList names();
    // The bundled SVG's resource path (":/…"); empty for an unknown name.
    static QString resourcePath(const QString& name);
    // The theme icon when the current theme has it, else the bundled SVG; a null icon for an unknown name.
    static QIcon icon(const QString& name);
    // The symbol drawn in `color` on transparency, `size` logical pixels square at `devicePixelRatio`;
    // a null image for an unknown name or an empty size.
    static QImage render(const QString& name, const QColor& color, int size, qreal devicePixelRatio = 1.0);

    // The bundled SVG as a URL for `Image.source` or a control's `icon.source`; empty for an unknown name.
    Q_INVOKABLE QUrl source(const QString& name) const;
    // The freedesktop icon-theme name, for untinted native use; empty for an unknown name.
    Q_INVOKABLE QString themeName(const QString& name) const;
    // The symbol tinted in `color`, as an image URL; empty for an unknown name. Needs an engine set up
    // with prepareQmlEngine().
    Q_INVOKABLE QUrl tintedSource(const QString& name, const QColor& color) const;
};

}  // namespace larkspan
