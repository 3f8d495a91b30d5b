// The tray icon: draws the status title as an icon with its full text in the tooltip, toggles the
// popover on a left click and offers the context menu on a right click. A tray host may appear
// after the application (at login): until one does the icon waits, and it shows once a host exists.
// The icon first shows with the first title.
#pragma once

#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QSystemTrayIcon>
#include <QTimer>

#include <functional>
#include <vector>

#include "App/StatusTitle.h"
#include "App/TrayMenu.h"
#include "App/ui/StartAtLoginController.h"
#include "App/ui/TrayIconPainter.h"

namespace larkspan {

class TrayIcon final : public QObject {
    Q_OBJECT
public:
    explicit TrayIcon(QObject* parent = nullptr);

    void update(const StatusTitle& title);
    bool isShown() const { return icon_.isVisible(); }
    // Where the icon sits on screen; empty when the tray does not tell.
    QRect geometry() const { return icon_.geometry(); }
    const QMenu& menu() const { return menu_; }

    // Where the menu's entries come from; asked each time the menu opens.
    void setMenuItems(std::function<std::vector<MenuItem>()> items);
    // Adds the checkable "Start Larkspan at login" entry above the menu's last part.
    void setStartAtLogin(StartAtLoginController* controller);

signals:
    void popoverToggleRequested();
    void openDashboardRequested();
    void quitRequested();
    // A host appeared after start-up and the icon is now shown; emitted once.
    void trayAppeared();

private:
    void rebuildMenu();
    void addStartAtLogin();
    void showWhenHostExists();

    QSystemTrayIcon icon_;
    QMenu menu_;
    QTimer hostWatch_;
    TrayIconContent shownContent_;
    std::function<std::vector<MenuItem>()> menuItems_;
    QPointer<StartAtLoginController> startAtLogin_;
    bool reportedNoHost_ = false;
};

}  // namespace larkspan
