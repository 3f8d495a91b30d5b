#include "App/ui/TrayIcon.h"

#include <cstdio>

namespace larkspan {

namespace {

const char* const kOpenDashboard = "Open Dashboard";
const char* const kQuit = "Quit Larkspan";

QString reviewTitle(qint64 count) {
    return QStringLiteral("Review %1 Pending\u2026").arg(count);
}

}  // namespace

QStringList TrayIcon::menuTitles(qint64 pendingCount) {
    QStringList titles{kOpenDashboard};
    if (pendingCount > 0)
        titles << reviewTitle(pendingCount);
    titles << QString() << kQuit;  // the empty entry is the separator
    return titles;
}

TrayIcon::TrayIcon(QObject* parent) : QObject(parent) {
    icon_.setContextMenu(&menu_);
    connect(&menu_, &QMenu::aboutToShow, this, &TrayIcon::rebuildMenu);
    connect(&icon_, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger)
            emit popoverToggleRequested();
    });
    rebuildMenu();

    // Hosts announce themselves without telling clients; a slow poll is cheap and only runs while
    // there is none.
    hostWatch_.setInterval(2000);
    connect(&hostWatch_, &QTimer::timeout, this, &TrayIcon::showWhenHostExists);
    showWhenHostExists();
}

void TrayIcon::update(const StatusTitle& title) {
    const TrayIconContent content{QString::fromStdString(title.icon), static_cast<int>(title.pendingCount),
                                  title.timerMark ? QString::fromStdString(*title.timerMark) : QString(),
                                  title.timerPaused};
    pendingCount_ = title.pendingCount;
    // The timer ticks twice a second; redraw the icon only when its picture changes.
    if (icon_.icon().isNull() || !(content == shownContent_)) {
        shownContent_ = content;
        icon_.setIcon(TrayIconPainter::icon(content));
    }
    icon_.setToolTip(QString::fromStdString(title.plainText()));
}

void TrayIcon::rebuildMenu() {
    menu_.clear();
    for (const QString& title : menuTitles(pendingCount_)) {
        if (title.isEmpty()) {
            menu_.addSeparator();
        } else if (title == kQuit) {
            menu_.addAction(title, this, &TrayIcon::quitRequested);
        } else {
            menu_.addAction(title, this, &TrayIcon::openDashboardRequested);
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
