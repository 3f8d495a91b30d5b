// The window of a floating prompt: frameless, always on top, a tool window that never takes the
// focus from the application in front, with a transparent background so that the view draws its own
// rounded card. It holds one view of the `Larkspan` QML module and sits at the bottom right of the
// primary screen's available area, `margin` pixels in from both edges.
#pragma once

#include <QQuickItem>
#include <QQuickWindow>
#include <QVariantMap>
#include <memory>

class QQmlEngine;
class QScreen;

namespace larkspan {

class FloatingWindow final : public QQuickWindow {
    Q_OBJECT
    // True where nothing composes translucent windows: the window is then opaque, and the card drawn
    // square to its edges instead of showing black corners.
    Q_PROPERTY(bool squareCorners READ squareCorners NOTIFY squareCornersChanged)
public:
    static constexpr QSize promptSize{340, 200};
    static constexpr int margin = 20;  // pixels from the screen's right and bottom edges

    // Creates the module's type `typeName` with `properties` in `engine` (which must be prepared
    // with prepareQmlEngine and outlive the window), titled `title`, `size` logical pixels. The view
    // is null, with the errors logged, when it cannot be created. Not shown yet.
    FloatingWindow(QQmlEngine& engine, const QString& typeName, const QVariantMap& properties,
                   const QString& title, QSize size = promptSize);
    ~FloatingWindow() override;

    QQuickItem* view() const { return view_.get(); }

    bool squareCorners() const { return squareCorners_; }
    void setSquareCorners(bool square);

    // Places the window at the bottom right of the primary screen and shows it without activating it.
    void showAtBottomRight();

    // The top left corner of a `size` window at the bottom right of `screen`'s available area; `current`
    // when there is no screen.
    static QPoint bottomRightPosition(const QScreen* screen, QSize size, QPoint current = {});

signals:
    void squareCornersChanged();

private:
    std::unique_ptr<QQuickItem> view_;
    bool squareCorners_ = false;
};

}  // namespace larkspan
