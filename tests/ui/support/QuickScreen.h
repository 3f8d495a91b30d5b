// Runs one QML view of the `Larkspan` module offscreen for a screen test: loads it with initial
// properties and context objects, fails the running test function on any warning (QML or other), renders
// it at a given size, drives it with the mouse and saves screenshots named
// "<test>-<state>-<light|dark>.png" under LARKSPAN_SCREENSHOT_DIR. Light and dark are fixed
// application palettes, so screenshots do not depend on the desktop the tests run on.
//
// Create a QuickScreen inside a test function: the warning check covers that function.
#pragma once

#include <QImage>
#include <QPalette>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QVariantMap>
#include <memory>
#include <optional>

namespace larkspan {

enum class ColorScheme { light, dark };

// The first item named `objectName` at or below `item`, depth first over the visual tree, which also
// reaches delegates and the insides of controls; null when there is none.
QQuickItem* findItem(QQuickItem* item, const QString& objectName);

// Clicks (or, with `hover`, only moves the pointer to) the centre of `item` in `window`, which may be
// a window the screen did not load.
void clickItem(QQuickWindow* window, const QQuickItem* item, bool hover = false);

// Pixels of `area` more than half covered; with `color` valid, only those near that colour.
int coveredPixels(const QImage& image, const QRect& area, QColor color = {});

// The fixed palette of a scheme.
QPalette schemePalette(ColorScheme scheme);

class QuickScreen {
public:
    QuickScreen();
    ~QuickScreen();
    QuickScreen(const QuickScreen&) = delete;
    QuickScreen& operator=(const QuickScreen&) = delete;

    // Loads the module's type `typeName` ("TimelineView") with `properties` at `size` logical pixels and
    // shows it. A view that is a Window is shown as it is; an Item is placed in a window of its own.
    // False (with the QML errors logged) when the view cannot be created.
    bool load(const QString& typeName, const QVariantMap& properties = {}, QSize size = {360, 480});
    // The same for a QML text, which may import `Larkspan` and anything else.
    bool loadText(const QByteArray& qml, const QVariantMap& properties = {}, QSize size = {360, 480});
    // Loads the floating card `typeName` ("IdleReturnView") over `controller`, which it gets as an
    // initial property as in its floating window, on a backdrop 20 pixels wider on every side: the
    // screenshots show its corners and the pointer can leave it.
    bool loadCard(const QString& typeName, QObject* controller);

    QQuickWindow* window() const { return window_; }
    QQuickItem* root() const { return root_; }

    // Sets the application palette of `scheme`; the views follow it.
    void setColorScheme(ColorScheme scheme);

    // The first item below the root named `objectName`; null when there is none.
    QQuickItem* find(const QString& objectName) const;
    // Clicks (or, with `hover`, only moves the pointer to) the centre of the item named `objectName`;
    // false when there is none or it is not visible.
    bool click(const QString& objectName, bool hover = false);
    // Does the item's accessible press action, as a screen reader does; false when there is none.
    bool press(const QString& objectName);
    // What a screen reader calls the item; empty when it has no accessible element.
    QString accessibleName(const QString& objectName) const;
    // Presses Tab until the item has the keyboard focus, which shows its focus ring; false when Tab
    // never reaches it.
    bool focusByKeyboard(const QString& objectName);
    // The item's `text` property; empty when there is none.
    QString text(const QString& objectName) const;
    // Whether the item named `objectName` exists and is visible.
    bool visible(const QString& objectName) const;

    // The window as drawn now, after pending updates.
    QImage grab();
    // Saves grab() in light, then dark, as "<test>-<state>-<light|dark>.png" under
    // LARKSPAN_SCREENSHOT_DIR; false when an image is empty or cannot be written. The screen is left
    // light. Each scheme is also audited for accessibility: a control without a name, or an element
    // offering a press that nothing answers, is a warning, which fails the test.
    bool saveScreenshots(const QString& test, const QString& state);

private:
    QQmlEngine engine_;
    std::unique_ptr<QQuickWindow> ownWindow_;
    std::unique_ptr<QObject> object_;
    QPointer<QQuickWindow> window_;
    QPointer<QQuickItem> root_;
    ColorScheme scheme_ = ColorScheme::light;
    QPalette originalPalette_;
};

}  // namespace larkspan
