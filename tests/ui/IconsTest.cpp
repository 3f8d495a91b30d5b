// The symbol table: every symbol has a bundled drawing of its own that renders in the tint asked for,
// and an unknown or malformed name quietly yields nothing.
#include <QFile>
#include <QSet>
#include <QSvgRenderer>
#include <QTest>

#include "QuickScreen.h"
#include "ui/Icons.h"
#include "ui/SymbolImageProvider.h"

using namespace larkspan;

class IconsTest : public QObject {
    Q_OBJECT
private slots:
    void everySymbolHasItsOwnDrawingInTheTintAskedFor() {
        Icons icons;
        const QColor tint(20, 110, 230);
        QSet<QByteArray> drawings;
        for (const QString& name : Icons::names()) {
            QSvgRenderer svg(Icons::resourcePath(name));
            QVERIFY2(svg.isValid() && svg.viewBoxF() == QRectF(0, 0, 24, 24), qPrintable(name));
            QVERIFY2(!icons.themeName(name).isEmpty() && !Icons::icon(name).isNull(), qPrintable(name));
            // Drawn (a broken file renders empty), in the tint only, and not cut off at the edges.
            const QImage image = Icons::render(name, tint, 24);
            const int covered = coveredPixels(image, image.rect());
            QVERIFY2(covered > 24 && coveredPixels(image, image.rect(), tint) == covered, qPrintable(name));
            QVERIFY2(coveredPixels(image, image.rect().adjusted(1, 1, -1, -1)) > covered * 9 / 10,
                     qPrintable(name));
            // A copied file would show the same drawing under two names.
            const QByteArray bits(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes());
            QVERIFY2(!drawings.contains(bits), qPrintable(name));
            drawings.insert(bits);
        }
        // High-density screens get the pixels they need.
        QCOMPARE(Icons::render("play.fill", tint, 16, 2.0).size(), QSize(32, 32));
    }

    void unknownSymbolsYieldNothingQuietly() {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        Icons icons;
        for (const QString& name : {QString(), QStringLiteral("PLAY.FILL"), QString(100000, QChar('x')),
                                    QString::fromUtf8("pla\xFFy"), QString::fromUtf8("play\0.fill", 10)}) {
            QVERIFY(Icons::resourcePath(name).isEmpty() && Icons::icon(name).isNull());
            QVERIFY(Icons::render(name, Qt::red, 24).isNull() && icons.source(name).isEmpty());
            QVERIFY(icons.themeName(name).isEmpty() && icons.tintedSource(name, Qt::red).isEmpty());
        }
        QVERIFY(Icons::render("play.fill", Qt::red, 0).isNull());
        // What the image provider may be asked for: unknown names, malformed colours.
        SymbolImageProvider provider;
        QSize size;
        for (const char* id : {"", "/", "nope/ff000000", "play.fill", "play.fill/zz", "/ff000000"})
            QVERIFY2(provider.requestImage(QString::fromUtf8(id), &size, {24, 24}).isNull(), id);
        QCOMPARE(provider.requestImage("play.fill/ff00ff00", &size, {18, 18}).size(), QSize(18, 18));
    }
};

QTEST_MAIN(IconsTest)
#include "IconsTest.moc"
