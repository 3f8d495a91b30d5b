// The tray icon: draws the status title as an icon with its full text in the tooltip, toggles the
// popover on a left click and offers the context menu on a right click. A tray host may appear
// after the application (at login): until one does the icon waits, and it shows once a host exists.
// The icon first shows with the first title. Qt's tray asks the session bus synchronously, so the
// icon is made only once the bus has answered (SessionBus); until then the title is kept. Pictures
// may also be held back for a while (see holdPictures).
#pragma once

#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QSystemTrayIcon>
#include <QTimer>

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
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
    // The first picture loads the colour emoji font, a tenth of a second: launch holds pictures back
    // until tracking has stored its first session. Titles are kept meanwhile, the latest drawn at
    // release. Releasing twice changes nothing.
    void holdPictures() { picturesHeld_ = true; }
    void releasePictures();
    bool isShown() const { return icon_ && icon_->isVisible(); }
    // Where the icon sits on screen; empty when the tray does not tell.
    QRect geometry() const { return icon_ ? icon_->geometry() : QRect(); }
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
    void makeIcon();
    // Hands the kept title to the icon; shows it the first time.
    void present();
    void showWhenHostExists();
    // The drawn icon of `content`, kept for the few pictures a day alternates between: the tray
    // caches scaled pixmaps per icon, so a fresh QIcon for an equal picture would grow memory.
    QIcon iconFor(const TrayIconContent& content);

    std::unique_ptr<QSystemTrayIcon> icon_;  // made once the session bus has answered
    QMenu menu_;
    QTimer hostWatch_;
    std::optional<TrayIconContent> content_;  // the last title's picture and tooltip
    QString toolTip_;
    std::deque<std::pair<TrayIconContent, QIcon>> drawnIcons_;  // most recent first
    std::function<std::vector<MenuItem>()> menuItems_;
    QPointer<StartAtLoginController> startAtLogin_;
    bool reportedNoHost_ = false;
    bool picturesHeld_ = false;
};

}  // namespace larkspan
