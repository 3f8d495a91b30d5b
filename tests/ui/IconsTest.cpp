// The symbol table: every symbol has a bundled drawing that renders in the tint asked for, an unknown
// name quietly yields nothing, and views draw symbols and symbol buttons in light and dark palettes.
#include <QFile>
#include <QSet>
#include <QSvgRenderer>
#include <QTest>

#include "QuickScreen.h"
#include "ui/Icons.h"
#include "ui/SymbolImageProvider.h"

using namespace larkspan;

namespace {

// Pixels more than half covered; with `color` valid, only those of that colour.
int coveredPixels(const QImage& image, const QRect& area, QColor color = {}) {
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QColor c = image.pixelColor(x, y);
            const bool near = !color.isValid() ||
                              (qAbs(c.red() - color.red()) < 40 && qAbs(c.green() - color.green()) < 40 &&
                               qAbs(c.blue() - color.blue()) < 40);
            count += c.alpha() > 128 && near;
        }
    }
    return count;
}

// Every symbol in the text colour, some at other sizes and tints, an unknown symbol that must stay
// empty, and buttons showing symbols the way controls do: the bundled drawing tinted by `icon.color`.
const QByteArray scene = R"(
import QtQuick
import QtQuick.Controls
import Larkspan

Pane {
    required property var names
    padding: 12
    Column {
        spacing: 12
        Grid {
            objectName: "grid"
            columns: 12
            spacing: 10
            Repeater {
                model: names
                SymbolIcon { objectName: "symbol-" + modelData; name: modelData; size: 24 }
            }
        }
        Row {
            spacing: 12
            SymbolIcon { objectName: "small"; name: "play.fill"; size: 16; color: "#e5484d" }
            SymbolIcon { name: "play.fill"; size: 24; color: "#e5484d" }
            SymbolIcon { name: "play.fill"; size: 36; color: "#e5484d" }
            SymbolIcon { name: "checkmark.circle.fill"; size: 36; color: "#30a46c" }
            SymbolIcon { name: "gearshape.fill"; size: 36; color: "#8e4ec6" }
            SymbolIcon { objectName: "unknown"; name: "no.such.symbol"; size: 36 }
        }
        Row {
            spacing: 12
            Button {
                text: "Delete"
                Accessible.onPressAction: clicked()
                icon.source: Icons.source("trash")
                icon.color: "#e5484d"
            }
            Button {
                objectName: "back"
                Accessible.name: "Previous day"
                Accessible.onPressAction: clicked()
                icon.source: Icons.source("chevron.left")
                icon.color: palette.buttonText
                display: AbstractButton.IconOnly
            }
        }
    }
}
)";

}  // namespace

class IconsTest : public QObject {
    Q_OBJECT
private slots:
    void everySymbolHasItsOwnDrawingInTheTintAskedFor() {
        const QStringList names = Icons::names();
        QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), names.size());
        Icons icons;
        const QColor tint(20, 110, 230);
        QSet<QByteArray> drawings;
        for (const QString& name : names) {
            QVERIFY2(QFile::exists(Icons::resourcePath(name)), qPrintable(name));
            QSvgRenderer svg(Icons::resourcePath(name));
            QVERIFY2(svg.isValid(), qPrintable(name));
            QCOMPARE(svg.viewBoxF(), QRectF(0, 0, 24, 24));
            QVERIFY2(!icons.themeName(name).isEmpty() && !Icons::icon(name).isNull(), qPrintable(name));
            QCOMPARE(icons.source(name).scheme(), QStringLiteral("qrc"));

            const QImage image = Icons::render(name, tint, 24);
            QCOMPARE(image.size(), QSize(24, 24));
            // Drawn (a broken file renders empty), in the tint only, and not cut off at the edges.
            const int covered = coveredPixels(image, image.rect());
            QVERIFY2(covered > 24, qPrintable(name));
            QCOMPARE(coveredPixels(image, image.rect(), tint), covered);
            QVERIFY2(coveredPixels(image, image.rect().adjusted(1, 1, -1, -1)) > covered * 9 / 10,
                     qPrintable(name));
            // A copied file would show the same drawing under two names.
            const QImage mask = Icons::render(name, Qt::black, 48);
            const QByteArray bits(reinterpret_cast<const char*>(mask.constBits()), mask.sizeInBytes());
            QVERIFY2(!drawings.contains(bits), qPrintable(name));
            drawings.insert(bits);
        }
        // High-density screens get the pixels they need.
        QCOMPARE(Icons::render("play.fill", tint, 16, 2.0).size(), QSize(32, 32));
    }

    void unknownSymbolsYieldNothingQuietly() {
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
        Icons icons;
        const QStringList unknown = {QString(),
                                     "play",
                                     "play.fill ",
                                     "PLAY.FILL",
                                     "play.fill/ff000000",
                                     QString(100000, QChar('x')),
                                     QString::fromUtf8("\xF0\x9F\x8D\x85.fill"),
                                     QString::fromUtf8("pla\xFFy"),
                                     QString::fromUtf8("play\0.fill", 10)};
        for (const QString& name : unknown) {
            QVERIFY(Icons::resourcePath(name).isEmpty() && Icons::icon(name).isNull());
            QVERIFY(Icons::render(name, Qt::red, 24).isNull() && icons.source(name).isEmpty());
            QVERIFY(icons.themeName(name).isEmpty() && icons.tintedSource(name, Qt::red).isEmpty());
        }
        QVERIFY(Icons::render("play.fill", Qt::red, 0).isNull());
        // What the image provider may be asked for: unknown names, malformed colours.
        SymbolImageProvider provider;
        QSize size;
        for (const char* id :
             {"", "/", "nope/ff000000", "play.fill", "play.fill/", "play.fill/zz", "/ff000000"})
            QVERIFY2(provider.requestImage(QString::fromUtf8(id), &size, {24, 24}).isNull(), id);
        QCOMPARE(provider.requestImage("play.fill/ff00ff00", &size, {}).size(), QSize(24, 24));
        QCOMPARE(provider.requestImage("play.fill/ff00ff00", &size, {18, 18}).size(), QSize(18, 18));
    }

    void viewsDrawSymbolsAndSymbolButtonsInBothSchemes() {
        QuickScreen screen;
        QVERIFY(screen.loadText(scene, {{"names", Icons::names()}}, {440, 300}));
        QVERIFY(screen.hover("back"));
        for (ColorScheme scheme : {ColorScheme::light, ColorScheme::dark}) {
            screen.setColorScheme(scheme);
            const QImage shot = screen.grab();
            const QColor ink = schemePalette(scheme).color(QPalette::WindowText);
            // Each symbol is drawn, in the palette's text colour.
            for (const QString& name : Icons::names()) {
                const QQuickItem* item = screen.find("symbol-" + name);
                QVERIFY2(item, qPrintable(name));
                QCOMPARE(item->size(), QSizeF(24, 24));
                const QRect area = item->mapRectToScene(QRectF(0, 0, 24, 24)).toRect();
                QVERIFY2(coveredPixels(shot, area, ink) > 24, qPrintable(name));
            }
            // The small red symbol is red; the unknown one leaves its square empty.
            const QQuickItem* small = screen.find("small");
            QVERIFY(coveredPixels(shot, small->mapRectToScene(QRectF(0, 0, 16, 16)).toRect(), "#e5484d") >
                    16);
            const QQuickItem* unknown = screen.find("unknown");
            QCOMPARE(coveredPixels(shot, unknown->mapRectToScene(QRectF(0, 0, 36, 36)).toRect(), ink), 0);
            QVERIFY(screen.saveScreenshot("icons", "all"));
        }
    }
};

QTEST_MAIN(IconsTest)
#include "IconsTest.moc"
