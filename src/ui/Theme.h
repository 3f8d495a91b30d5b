// The one theme of every screen, as the `Theme` QML singleton: the core Palette's named colours and
// opacities, the desktop palette's text colours (primary, secondary, tertiary, and the separator drawn
// from it), and the spacing and font sizes. Screens write no colour, no text alpha and no font size of
// their own; they take these, and tint() a colour to one of the opacities.
//
// The text colours follow the application palette: a change of the desktop's colour scheme redraws
// them.
#pragma once

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QObject>

#include "Classification/Palette.h"
#include "ui/QtConversion.h"

namespace larkspan {

class Theme final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(QColor primaryText READ primaryText NOTIFY textColorsChanged)
    Q_PROPERTY(QColor secondaryText READ secondaryText NOTIFY textColorsChanged)
    Q_PROPERTY(QColor tertiaryText READ tertiaryText NOTIFY textColorsChanged)
    Q_PROPERTY(QColor separator READ separator NOTIFY textColorsChanged)
    Q_PROPERTY(QColor border READ border NOTIFY textColorsChanged)
    Q_PROPERTY(QColor hover READ hover NOTIFY textColorsChanged)

    Q_PROPERTY(QColor orange MEMBER orange CONSTANT)
    Q_PROPERTY(QColor green MEMBER green CONSTANT)
    Q_PROPERTY(QColor red MEMBER red CONSTANT)
    Q_PROPERTY(QColor purple MEMBER purple CONSTANT)
    Q_PROPERTY(QColor blue MEMBER blue CONSTANT)
    Q_PROPERTY(QColor grey MEMBER grey CONSTANT)
    Q_PROPERTY(QColor onColor MEMBER onColor CONSTANT)
    Q_PROPERTY(QColor onColorSecondary MEMBER onColorSecondary CONSTANT)
    Q_PROPERTY(QColor onColorTertiary MEMBER onColorTertiary CONSTANT)

    Q_PROPERTY(double wash MEMBER wash CONSTANT)
    Q_PROPERTY(double faintWash MEMBER faintWash CONSTANT)
    Q_PROPERTY(double track MEMBER track CONSTANT)
    Q_PROPERTY(double ringTrack MEMBER ringTrack CONSTANT)
    Q_PROPERTY(double tileHover MEMBER tileHover CONSTANT)
    Q_PROPERTY(double tilePressed MEMBER tilePressed CONSTANT)
    Q_PROPERTY(double buttonWash MEMBER buttonWash CONSTANT)
    Q_PROPERTY(double buttonPressed MEMBER buttonPressed CONSTANT)
    Q_PROPERTY(double pressedFill MEMBER pressedFill CONSTANT)
    Q_PROPERTY(double entryWash MEMBER entryWash CONSTANT)
    Q_PROPERTY(double selectedRow MEMBER selectedRow CONSTANT)
    Q_PROPERTY(double hollowMark MEMBER hollowMark CONSTANT)
    Q_PROPERTY(double badgeText MEMBER badgeText CONSTANT)
    Q_PROPERTY(double suggestedFill MEMBER suggestedFill CONSTANT)
    Q_PROPERTY(double suggestedEdge MEMBER suggestedEdge CONSTANT)

    // Pixels between items in a row or column, small to large, and a section's inner margin.
    Q_PROPERTY(int spacingSmall MEMBER spacingSmall CONSTANT)
    Q_PROPERTY(int spacing MEMBER spacing CONSTANT)
    Q_PROPERTY(int spacingLarge MEMBER spacingLarge CONSTANT)
    Q_PROPERTY(int margin MEMBER margin CONSTANT)

    // Font pixel sizes, smallest first.
    Q_PROPERTY(int fontTiny MEMBER fontTiny CONSTANT)
    Q_PROPERTY(int fontCaption MEMBER fontCaption CONSTANT)
    Q_PROPERTY(int fontSmall MEMBER fontSmall CONSTANT)
    Q_PROPERTY(int fontBody MEMBER fontBody CONSTANT)
    Q_PROPERTY(int fontHeadline MEMBER fontHeadline CONSTANT)
    Q_PROPERTY(int fontTitle MEMBER fontTitle CONSTANT)
    Q_PROPERTY(int fontLargeTitle MEMBER fontLargeTitle CONSTANT)
    // The colour emoji font, named: a text font holding the same code point would draw it flat.
    Q_PROPERTY(QString emojiFont MEMBER emojiFont CONSTANT)

public:
    explicit Theme(QObject* parent = nullptr);

    QColor primaryText() const;
    QColor secondaryText() const { return tinted(Palette::secondaryText); }
    QColor tertiaryText() const { return tinted(Palette::tertiaryText); }
    QColor separator() const { return tinted(Palette::separator); }
    QColor border() const { return tinted(Palette::border); }
    QColor hover() const { return tinted(Palette::hover); }

    // `color` at `opacity` (0 to 1), whatever its own alpha.
    Q_INVOKABLE static QColor tint(const QColor& color, double opacity);

    const QColor orange = toQColor(Palette::orange);
    const QColor green = toQColor(Palette::green);
    const QColor red = toQColor(Palette::red);
    const QColor purple = toQColor(Palette::purple);
    const QColor blue = toQColor(Palette::blue);
    const QColor grey = toQColor(Palette::grey);
    const QColor onColor = toQColor(Palette::white);
    const QColor onColorSecondary = toQColor(Palette::white, Palette::onColorSecondary);
    const QColor onColorTertiary = toQColor(Palette::white, Palette::onColorTertiary);

    const double wash = Palette::wash;
    const double faintWash = Palette::faintWash;
    const double track = Palette::track;
    const double ringTrack = Palette::ringTrack;
    const double tileHover = Palette::tileHover;
    const double tilePressed = Palette::tilePressed;
    const double buttonWash = Palette::buttonWash;
    const double buttonPressed = Palette::buttonPressed;
    const double pressedFill = Palette::pressedFill;
    const double entryWash = Palette::entryWash;
    const double selectedRow = Palette::selectedRow;
    const double hollowMark = Palette::hollowMark;
    const double badgeText = Palette::badgeText;
    const double suggestedFill = Palette::suggestedFill;
    const double suggestedEdge = Palette::suggestedEdge;

    const int spacingSmall = 6;
    const int spacing = 8;
    const int spacingLarge = 10;
    const int margin = 14;

    const int fontTiny = 10;
    const int fontCaption = 11;
    const int fontSmall = 12;
    const int fontBody = 13;
    const int fontHeadline = 17;
    const int fontTitle = 20;
    const int fontLargeTitle = 24;
    const QString emojiFont = QStringLiteral("Noto Color Emoji");

signals:
    void textColorsChanged();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QColor tinted(double opacity) const { return tint(primaryText(), opacity); }
};

}  // namespace larkspan
