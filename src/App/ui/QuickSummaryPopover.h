// The window of the quick summary: a frameless 320 × 420 window that opens against the tray icon
// (or at the pointer when the tray does not say where it is), inside the screen's available area,
// and closes when it loses activation, which a click anywhere else brings. On Wayland, where a
// client learns neither the pointer nor (from Qt's StatusNotifierItem) the icon's place, it is an
// ordinary small window centred on the primary screen, or against the icon when the tray tells. The view
// inside is made once and lives with the window; each opening loads the day again.
//
// A click on the tray icon while the popover is open first takes activation away, which closes it;
// the click's toggle that follows must not reopen it, so a toggle right after such a close does
// nothing.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <memory>

#include "App/ui/QuickSummaryController.h"

namespace larkspan {

class QuickSummaryPopover final : public QObject {
    Q_OBJECT
public:
    static constexpr QSize kSize{320, 420};

    // Builds the view in `engine` over `controller`; both must outlive the popover.
    QuickSummaryPopover(QQmlEngine& engine, QuickSummaryController& controller, QObject* parent = nullptr);
    ~QuickSummaryPopover() override;

    bool isShown() const { return window_.isVisible(); }
    QQuickWindow& window() { return window_; }

    // Opens against `trayIcon` (an empty rectangle: at the pointer), or closes when open.
    void toggle(const QRect& trayIcon);
    void show(const QRect& trayIcon);
    void close();

private:
    void activeChanged();

    QuickSummaryController& controller_;
    QQuickWindow window_;
    std::unique_ptr<QQuickItem> view_;
    QElapsedTimer sinceDeactivationClose_;
};

}  // namespace larkspan
