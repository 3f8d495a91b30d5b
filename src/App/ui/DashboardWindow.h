// The one dashboard window: made once, then shown, raised and activated whenever it is asked for.
// Closing it only hides it, so the view keeps its state (tab, date, categories) and tracking goes
// on. Its geometry is kept in the settings file under "Dashboard" as the user moves or resizes it
// (where the platform reports that), when it closes and when it goes away, and restored when it is
// made; a saved place no screen shows any more falls back to the centre.
#pragma once

#include <QObject>
#include <QQuickView>
#include <QSettings>

#include <memory>

#include "App/ui/DashboardController.h"
#include "App/ui/DashboardScreens.h"

class QQmlEngine;

namespace larkspan {

class DashboardWindow final : public QObject {
public:
    static constexpr QSize defaultSize{1100, 740};
    static constexpr QSize minimumSize{900, 600};
    static inline const QString geometryKey = QStringLiteral("Dashboard");

    // Builds the window hidden over `engine` (prepared with prepareQmlEngine), which must outlive it,
    // as must everything in `services`. `settingsPath` is the INI file that keeps the geometry; the
    // first selected date is today.
    DashboardWindow(QQmlEngine& engine, const DashboardServices& services, const QString& settingsPath,
                    QObject* parent = nullptr);
    ~DashboardWindow() override;

    // Shows the window (un-minimised), raises it and asks for the keyboard focus.
    void open();

    QQuickView& window() { return *view_; }
    DashboardController& controller() { return controller_; }

private:
    void restoreGeometry();
    void saveGeometry();

    DashboardController controller_;
    DashboardScreens screens_;
    QSettings settings_;
    std::unique_ptr<QQuickView> view_;
};

}  // namespace larkspan
