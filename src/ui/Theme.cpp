#include "ui/Theme.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

namespace larkspan {

Theme::Theme(QObject* parent) : QObject(parent) {
    if (QCoreApplication* app = QCoreApplication::instance())
        app->installEventFilter(this);
}

QColor Theme::primaryText() const {
    return QGuiApplication::palette().color(QPalette::WindowText);
}

QColor Theme::tint(const QColor& color, double opacity) {
    QColor tinted = color;
    tinted.setAlphaF(static_cast<float>(opacity));
    return tinted;
}

bool Theme::eventFilter(QObject* watched, QEvent* event) {
    if (watched == QCoreApplication::instance() && event->type() == QEvent::ApplicationPaletteChange)
        emit textColorsChanged();
    return QObject::eventFilter(watched, event);
}

}  // namespace larkspan
