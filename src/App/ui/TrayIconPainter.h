// Draws the tray icon: a tray shows a picture, not text, so the status title becomes the category's
// emoji, an orange badge with the pending count, and a small tomato or cup while the timer runs.
// Drawn fresh for each device size so it stays crisp at 16, 22, 24 and 32 pixels.
#pragma once

#include <QIcon>
#include <QImage>
#include <QString>

namespace larkspan {

struct TrayIconContent {
    QString emoji;         // the category's icon, or "⏱"
    int pendingCount = 0;  // badge when at least 1
    QString timerMark;     // "🍅" or "☕" while the timer runs or is paused; empty when idle
    bool timerPaused = false;

    bool operator==(const TrayIconContent&) const = default;
};

class TrayIconPainter {
public:
    static QImage paint(const TrayIconContent& content, int size, qreal devicePixelRatio = 1.0);
    // Every common tray size, for the platform to pick from.
    static QIcon icon(const TrayIconContent& content);
    // Badge text: the count up to 99, then "99+".
    static QString badgeText(int count);
};

}  // namespace larkspan
