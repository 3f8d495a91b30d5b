// The tray icon at every common panel size: the emoji fills it, the badge and timer mark appear
// only when they should. Each state is saved as a PNG to look at.
#include <QDir>
#include <QGuiApplication>
#include <QTest>

#include "App/ui/TrayIconPainter.h"

using namespace larkspan;

namespace {

int opaquePixels(const QImage& image, const QRect& area) {
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            count += qAlpha(image.pixel(x, y)) > 128;
    return count;
}

bool hasBadgeOrange(const QImage& image, const QRect& area) {
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QColor c = image.pixelColor(x, y);
            if (c.alpha() > 200 && c.red() > 230 && c.green() > 120 && c.green() < 170 && c.blue() < 40)
                return true;
        }
    }
    return false;
}

}  // namespace

class TrayIconPainterTest : public QObject {
    Q_OBJECT
private slots:
    void drawsEachStateCrisplyAtEverySize_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("pending");
        QTest::addColumn<QString>("timer");
        QTest::addColumn<bool>("paused");
        QTest::newRow("plain") << "plain" << 0 << QString() << false;
        QTest::newRow("pending") << "pending" << 3 << QString() << false;
        QTest::newRow("many-pending") << "many-pending" << 120 << QString() << false;
        QTest::newRow("focus") << "focus" << 0 << QString::fromUtf8("\xF0\x9F\x8D\x85") << false;
        QTest::newRow("break-paused-pending")
            << "break-paused-pending" << 7 << QString::fromUtf8("\xE2\x98\x95") << true;
    }

    void drawsEachStateCrisplyAtEverySize() {
        QFETCH(QString, name);
        QFETCH(int, pending);
        QFETCH(QString, timer);
        QFETCH(bool, paused);
        const TrayIconContent content{QString::fromUtf8("\xF0\x9F\x92\xBB"), pending, timer, paused};
        const QString dir = QStringLiteral(LARKSPAN_SCREENSHOT_DIR);
        QDir().mkpath(dir);
        for (int size : {16, 22, 24, 32}) {
            const QImage image = TrayIconPainter::paint(content, size);
            QCOMPARE(image.size(), QSize(size, size));
            // The emoji covers a good part of the icon: a font that fails to load leaves it empty.
            QVERIFY2(opaquePixels(image, image.rect()) > size * size / 4, qPrintable(name));
            const QRect topRight(size / 2, 0, size / 2, size / 2);
            QCOMPARE(hasBadgeOrange(image, topRight), pending > 0);
            QVERIFY(TrayIconPainter::paint(content, size, 2.0)
                        .save(QStringLiteral("%1/tray-%2-%3@2x.png").arg(dir, name).arg(size)));
            QVERIFY(image.save(QStringLiteral("%1/tray-%2-%3.png").arg(dir, name).arg(size)));
        }
    }

    void badgeCapsAtNinetyNine() {
        QCOMPARE(TrayIconPainter::badgeText(1), QStringLiteral("1"));
        QCOMPARE(TrayIconPainter::badgeText(99), QStringLiteral("99"));
        QCOMPARE(TrayIconPainter::badgeText(100), QStringLiteral("99+"));
    }
};

QTEST_MAIN(TrayIconPainterTest)
#include "TrayIconPainterTest.moc"
