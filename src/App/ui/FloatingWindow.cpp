#include "App/ui/FloatingWindow.h"

#include <QDebug>
#include <QGuiApplication>
#include <QPalette>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QScreen>

namespace larkspan {

FloatingWindow::FloatingWindow(QQmlEngine& engine, const QString& typeName, const QVariantMap& properties,
                               const QString& title, QSize size) {
    setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus);
    setTitle(title);
    // An alpha channel lets a compositing desktop show the card's rounded corners.
    QSurfaceFormat surface = format();
    surface.setAlphaBufferSize(8);
    setFormat(surface);
    setColor(Qt::transparent);
    resize(size);
    setMinimumSize(size);
    setMaximumSize(size);

    QQmlComponent component(&engine);
    component.setData(QStringLiteral("import Larkspan\n%1 {}\n").arg(typeName).toUtf8(),
                      QUrl(QStringLiteral("qrc:/floating-window/View.qml")));
    std::unique_ptr<QObject> object;
    if (component.isReady())
        object.reset(component.createWithInitialProperties(properties));
    view_.reset(qobject_cast<QQuickItem*>(object.get()));
    if (!view_) {
        qWarning().noquote() << "Larkspan: cannot show" << typeName << component.errorString();
        return;
    }
    object.release();
    QQmlEngine::setObjectOwnership(view_.get(), QQmlEngine::CppOwnership);
    view_->setParentItem(contentItem());
    view_->setSize(size);
}

FloatingWindow::~FloatingWindow() = default;

void FloatingWindow::setSquareCorners(bool square) {
    if (square == squareCorners_)
        return;
    squareCorners_ = square;
    setColor(square ? QGuiApplication::palette().color(QPalette::Window) : QColor(Qt::transparent));
    emit squareCornersChanged();
}

QPoint FloatingWindow::bottomRightPosition(const QScreen* screen, QSize size, QPoint current) {
    if (!screen)
        return current;
    const QRect area = screen->availableGeometry();
    return {area.x() + area.width() - size.width() - margin,
            area.y() + area.height() - size.height() - margin};
}

void FloatingWindow::showAtBottomRight() {
    setPosition(bottomRightPosition(QGuiApplication::primaryScreen(), size(), position()));
    // show() maps the window without asking for activation; the flags keep the window manager from
    // giving it the focus.
    show();
}

}  // namespace larkspan
