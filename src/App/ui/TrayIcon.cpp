#include "App/ui/TrayIcon.h"

#include <cstdio>

namespace larkspan {

TrayIcon::TrayIcon(QObject* parent) : QObject(parent) {
    icon_.setContextMenu(&menu_);
    connect(&menu_, &QMenu::aboutToShow, this, &TrayIcon::rebuildMenu);
    connect(&icon_, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger)
            emit popoverToggleRequested();
    });

    // Hosts announce themselves without telling clients; a slow poll is cheap and only runs while
    // there is none.
    hostWatch_.setInterval(2000);
    connect(&hostWatch_, &QTimer::timeout, this, &TrayIcon::showWhenHostExists);
}

void TrayIcon::update(const StatusTitle& title) {
    const TrayIconContent content{QString::fromStdString(title.icon), static_cast<int>(title.pendingCount),
                                  title.timerMark ? QString::fromStdString(*title.timerMark) : QString(),
                                  title.timerPaused};
    // The timer ticks twice a second; redraw the icon only when its picture changes.
    if (icon_.icon().isNull() || !(content == shownContent_)) {
        shownContent_ = content;
        icon_.setIcon(TrayIconPainter::icon(content));
    }
    icon_.setToolTip(QString::fromStdString(title.plainText()));
    // The icon goes up with its first picture, never blank.
    if (!icon_.isVisible() && !hostWatch_.isActive())
        showWhenHostExists();
}

void TrayIcon::setMenuItems(std::function<std::vector<MenuItem>()> items) {
    menuItems_ = std::move(items);
    rebuildMenu();
}

void TrayIcon::rebuildMenu() {
    menu_.clear();
    if (!menuItems_)
        return;
    for (const auto& item : menuItems_()) {
        const auto title = QString::fromStdString(item.title);
        switch (item.action) {
            case MenuItem::Action::separator:
                menu_.addSeparator();
                break;
            case MenuItem::Action::openDashboard:
                menu_.addAction(title, this, &TrayIcon::openDashboardRequested);
                break;
            case MenuItem::Action::quit:
                menu_.addAction(title, this, &TrayIcon::quitRequested);
                break;
        }
    }
}

void TrayIcon::showWhenHostExists() {
    if (!QSystemTrayIcon::isSystemTrayAvailable()) {
        if (!reportedNoHost_) {
            reportedNoHost_ = true;
            std::fprintf(stderr,
                         "Larkspan: no system tray yet; the dashboard stands in until one appears.\n");
        }
        hostWatch_.start();
        return;
    }
    hostWatch_.stop();
    const bool late = reportedNoHost_;
    icon_.show();
    if (late)
        emit trayAppeared();
}

}  // namespace larkspan
