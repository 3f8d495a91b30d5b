#include "App/ui/TrayIcon.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "Platform/Qt/SessionBus.h"

namespace larkspan {

namespace {

constexpr std::size_t kDrawnIconsKept = 32;

}  // namespace

TrayIcon::TrayIcon(QObject* parent) : QObject(parent) {
    connect(&menu_, &QMenu::aboutToShow, this, &TrayIcon::rebuildMenu);
    SessionBus::whenAnswered(this, [this] { makeIcon(); });

    // Hosts announce themselves without telling clients; a slow poll is cheap and only runs while
    // there is none.
    hostWatch_.setInterval(2000);
    connect(&hostWatch_, &QTimer::timeout, this, &TrayIcon::showWhenHostExists);
}

void TrayIcon::makeIcon() {
    icon_ = std::make_unique<QSystemTrayIcon>();
    icon_->setContextMenu(&menu_);
    connect(icon_.get(), &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger)
            emit popoverToggleRequested();
    });
    if (content_ && !picturesHeld_)
        present();
}

void TrayIcon::releasePictures() {
    if (!std::exchange(picturesHeld_, false))
        return;
    if (icon_ && content_)
        present();
}

void TrayIcon::update(const StatusTitle& title) {
    const TrayIconContent content{QString::fromStdString(title.icon), static_cast<int>(title.pendingCount),
                                  title.timerMark ? QString::fromStdString(*title.timerMark) : QString(),
                                  title.timerPaused};
    const QString toolTip = QString::fromStdString(title.plainText());
    // The timer ticks twice a second; the tray hears only of what changed.
    if (content_ == content && toolTip_ == toolTip)
        return;
    content_ = content;
    toolTip_ = toolTip;
    if (icon_ && !picturesHeld_)
        present();
}

void TrayIcon::present() {
    if (const QIcon icon = iconFor(*content_); icon.cacheKey() != icon_->icon().cacheKey())
        icon_->setIcon(icon);
    if (toolTip_ != icon_->toolTip())
        icon_->setToolTip(toolTip_);
    // The icon goes up with its first picture, never blank.
    if (!icon_->isVisible() && !hostWatch_.isActive())
        showWhenHostExists();
}

QIcon TrayIcon::iconFor(const TrayIconContent& content) {
    const auto kept = std::find_if(drawnIcons_.begin(), drawnIcons_.end(),
                                   [&content](const auto& entry) { return entry.first == content; });
    std::pair<TrayIconContent, QIcon> entry;
    if (kept != drawnIcons_.end()) {
        entry = std::move(*kept);
        drawnIcons_.erase(kept);
    } else {
        entry = {content, TrayIconPainter::icon(content)};
        if (drawnIcons_.size() == kDrawnIconsKept)
            drawnIcons_.pop_back();
    }
    drawnIcons_.push_front(std::move(entry));
    return drawnIcons_.front().second;
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
    addStartAtLogin();
}

void TrayIcon::setStartAtLogin(StartAtLoginController* controller) {
    startAtLogin_ = controller;
    rebuildMenu();
}

void TrayIcon::addStartAtLogin() {
    if (!startAtLogin_ || !startAtLogin_->available())
        return;
    // Read again as the menu opens, so an entry removed by hand shows as off.
    startAtLogin_->refresh();
    const QList<QAction*> actions = menu_.actions();
    QAction* before = nullptr;
    for (QAction* action : actions)
        if (action->isSeparator())
            before = action;
    auto* toggle = new QAction(QStringLiteral("Start Larkspan at login"), &menu_);
    toggle->setCheckable(true);
    toggle->setChecked(startAtLogin_->isOn());
    connect(toggle, &QAction::triggered, startAtLogin_.data(), &StartAtLoginController::setOn);
    menu_.insertAction(before, toggle);
    menu_.insertSeparator(toggle);
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
    icon_->show();
    if (late)
        emit trayAppeared();
}

}  // namespace larkspan
