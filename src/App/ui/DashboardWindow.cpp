#include "App/ui/DashboardWindow.h"

#include <QGuiApplication>
#include <QPalette>
#include <QQmlEngine>
#include <QScreen>

#include <algorithm>

namespace larkspan {

DashboardWindow::DashboardWindow(QQmlEngine& engine, const DashboardServices& services,
                                 const QString& settingsPath, QObject* parent)
    : QObject(parent),
      controller_(services.database, services.sessionManager, services.clock.now()),
      screens_(services, controller_),
      settings_(settingsPath, QSettings::IniFormat),
      view_(std::make_unique<QQuickView>(&engine, nullptr)) {
    view_->setTitle(QStringLiteral("Larkspan"));
    view_->setMinimumSize(minimumSize);
    view_->setResizeMode(QQuickView::SizeRootObjectToView);
    view_->setColor(QGuiApplication::palette().color(QPalette::Window));
    // Hidden, the window keeps its view and state but not what drawing it took.
    view_->setPersistentGraphics(false);
    view_->setPersistentSceneGraph(false);
    view_->setInitialProperties({{QStringLiteral("controller"), QVariant::fromValue(&controller_)},
                                 {QStringLiteral("screens"), QVariant::fromValue(&screens_)}});
    view_->setSource(QUrl(QStringLiteral("qrc:/qt/qml/Larkspan/DashboardView.qml")));
    restoreGeometry();

    // The categories are read each time the window comes on screen, so one added elsewhere shows
    // after reopening.
    connect(view_.get(), &QWindow::visibleChanged, this, [this](bool visible) {
        if (visible) {
            controller_.loadCategories();
        } else {
            saveGeometry();
            view_->releaseResources();
        }
    });
    for (auto changed :
         {&QWindow::xChanged, &QWindow::yChanged, &QWindow::widthChanged, &QWindow::heightChanged})
        connect(view_.get(), changed, this, &DashboardWindow::saveGeometry);
}

DashboardWindow::~DashboardWindow() {
    // A closed window was saved as it closed.
    if (view_->isVisible())
        saveGeometry();
    // The view goes first, as its bindings read the controller, and hiding it then saves nothing.
    view_->disconnect(this);
    view_.reset();
}

void DashboardWindow::open() {
    if (view_->windowStates() & Qt::WindowMinimized)
        view_->setWindowStates(view_->windowStates() & ~Qt::WindowMinimized);
    // A hidden window comes up on top; a shown one may be behind others.
    if (view_->isVisible())
        view_->raise();
    else
        view_->show();
    view_->requestActivate();
}

void DashboardWindow::restoreGeometry() {
    const QRect saved = settings_.value(geometryKey).toRect();
    const QList<QScreen*> screens = QGuiApplication::screens();
    const bool onScreen =
        saved.isValid() && std::any_of(screens.begin(), screens.end(), [&saved](const QScreen* s) {
            return s->availableGeometry().intersects(saved);
        });
    if (onScreen) {
        view_->setGeometry(QRect(saved.topLeft(), saved.size().expandedTo(minimumSize)));
        return;
    }
    view_->resize(defaultSize);
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        // Centred; on a screen smaller than the window its top left corner stays reachable.
        const QRect available = screen->availableGeometry();
        QRect frame(QPoint(), defaultSize);
        frame.moveCenter(available.center());
        view_->setPosition(std::max(frame.left(), available.left()), std::max(frame.top(), available.top()));
    }
}

void DashboardWindow::saveGeometry() {
    // A minimised, maximised or full-screen frame is not the one to come back to.
    if (view_->windowStates() & (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen))
        return;
    settings_.setValue(geometryKey, view_->geometry());
}

}  // namespace larkspan
