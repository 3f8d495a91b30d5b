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

class QQmlEngine;

namespace larkspan {

class DashboardWindow final : public QObject {
public:
    static constexpr QSize defaultSize{1100, 740};
    static constexpr QSize minimumSize{900, 600};
    static inline const QString geometryKey = QStringLiteral("Dashboard");

    // Builds the window hidden over `engine` (prepared with prepareQmlEngine), which must outlive it,
    // as must `database` and `sessionManager`. `settingsPath` is the INI file that keeps the geometry;
    // `now` (seconds since 1970) is the first selected date.
    DashboardWindow(QQmlEngine& engine, Database& database, SessionManager& sessionManager, Date now,
                    const QString& settingsPath, QObject* parent = nullptr);
    ~DashboardWindow() override;

    // Shows the window (un-minimised), raises it and asks for the keyboard focus.
    void open();

    QQuickView& window() { return *view_; }
    DashboardController& controller() { return controller_; }

private:
    void restoreGeometry();
    void saveGeometry();

    DashboardController controller_;
    QSettings settings_;
    std::unique_ptr<QQuickView> view_;
};

}  // namespace larkspan
