// The core's values as Qt ones, for controllers handing them to QML: text (UTF-8 in the core; invalid
// sequences become replacement characters, never a failure), colours and instants.
#pragma once

#include <QColor>
#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>
#include <QString>

#include <optional>
#include <string>
#include <string_view>

#include "Classification/Category.h"
#include "Platform/Clock.h"

namespace larkspan {

inline QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline QString toQString(const std::string& text) {
    return toQString(std::string_view(text));
}
inline QString toQString(const char* text) {
    return QString::fromUtf8(text);
}
// Absent text is the empty string.
inline QString toQString(const std::optional<std::string>& text) {
    return text ? toQString(*text) : QString();
}

inline QColor toQColor(const Color& color, double opacity = 1.0) {
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(opacity));
}

// An instant (seconds since 1970) in the local time zone.
inline QDateTime localDateTime(Date instant) {
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(instant * 1000));
}

// The locale's short time style, hours and minutes: the C locale's short style carries seconds.
inline QString shortTimeFormat(const QLocale& locale) {
    QString format = locale.timeFormat(QLocale::ShortFormat);
    format.remove(QRegularExpression(QStringLiteral("[:.]ss?")));
    return format;
}

// An instant's local time in that short style.
inline QString shortTimeText(Date instant) {
    const QLocale locale;
    return locale.toString(localDateTime(instant).time(), shortTimeFormat(locale));
}

}  // namespace larkspan
