#include "App/ui/QuickSummaryPopover.h"

#include <QCursor>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QScreen>

#include "App/PopoverPlacement.h"

namespace larkspan {

namespace {

// Longer than a click takes from press (which deactivates) to release (which toggles).
constexpr qint64 kReopenGuardMilliseconds = 400;

ScreenRect screenRect(const QRect& rect) {
    return {rect.x(), rect.y(), rect.width(), rect.height()};
}

// A Wayland client neither knows the pointer outside its own windows nor places its windows; the
// compositor does, and most centre a small window of fixed size.
bool placesItself() {
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

}  // namespace

QuickSummaryPopover::QuickSummaryPopover(QQmlEngine& engine, QuickSummaryController& controller,
                                         QObject* parent)
    : QObject(parent), controller_(controller) {
    // Where it cannot open against the icon, it is an ordinary window the user can move and close.
    window_.setFlags(placesItself() ? Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
                                    : Qt::Window | Qt::WindowCloseButtonHint | Qt::WindowTitleHint);
    // Not "Larkspan": that names the dashboard, which scripts and window lists look up by title.
    window_.setTitle(QStringLiteral("Quick Summary"));
    window_.resize(kSize);
    window_.setMinimumSize(kSize);
    window_.setMaximumSize(kSize);
    // Hidden, the window keeps its view but not what drawing it took; the next opening draws anew.
    window_.setPersistentGraphics(false);
    window_.setPersistentSceneGraph(false);

    QQmlComponent component(&engine);
    component.setData("import Larkspan\nQuickSummaryView {}\n",
                      QUrl(QStringLiteral("qrc:/popover/Popover.qml")));
    QObject* made = component.createWithInitialProperties({{"controller", QVariant::fromValue(&controller)}});
    view_.reset(qobject_cast<QQuickItem*>(made));
    if (!view_) {
        delete made;
        qWarning().noquote() << "Larkspan: the quick summary cannot be shown:" << component.errorString();
        return;
    }
    view_->setParentItem(window_.contentItem());
    view_->setSize(kSize);
    connect(&window_, &QWindow::activeChanged, this, &QuickSummaryPopover::activeChanged);
}

QuickSummaryPopover::~QuickSummaryPopover() {
    // The view goes before its window.
    view_.reset();
}

void QuickSummaryPopover::toggle(const QRect& trayIcon) {
    if (window_.isVisible()) {
        close();
    } else if (!sinceDeactivationClose_.isValid() ||
               sinceDeactivationClose_.elapsed() > kReopenGuardMilliseconds) {
        show(trayIcon);
    }
}

void QuickSummaryPopover::show(const QRect& trayIcon) {
    const bool centred = trayIcon.isEmpty() && !placesItself();
    const QPoint pointer = centred ? QPoint() : QCursor::pos();
    QScreen* screen =
        centred ? nullptr : QGuiApplication::screenAt(trayIcon.isEmpty() ? pointer : trayIcon.center());
    if (!screen) {
        screen = QGuiApplication::primaryScreen();
    }
    const ScreenRect available = screen ? screenRect(screen->availableGeometry()) : ScreenRect{};
    const ScreenRect frame = centred ? centrePopover(available, kSize.width(), kSize.height())
                                     : placePopover(screenRect(trayIcon), {pointer.x(), pointer.y()},
                                                    available, kSize.width(), kSize.height());
    if (screen) {
        window_.setScreen(screen);
    }
    window_.setGeometry(frame.x, frame.y, frame.width, frame.height);
    controller_.load();
    window_.show();
    window_.requestActivate();
}

void QuickSummaryPopover::close() {
    window_.hide();
    window_.releaseResources();
}

void QuickSummaryPopover::activeChanged() {
    if (!window_.isActive() && window_.isVisible()) {
        sinceDeactivationClose_.start();
        close();
    }
}

}  // namespace larkspan
