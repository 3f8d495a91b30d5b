// Instants of the core as the user's locale writes them: the local date and time, and the short time
// style with hours and minutes only (the C locale's short style carries seconds).
#pragma once

#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>
#include <QString>

#include "Platform/Clock.h"

namespace larkspan {

inline QDateTime localDateTime(Date instant) {
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(instant * 1000));
}

inline QString shortTimeFormat(const QLocale& locale) {
    QString format = locale.timeFormat(QLocale::ShortFormat);
    format.remove(QRegularExpression(QStringLiteral("[:.]ss?")));
    return format;
}

inline QString shortTimeText(Date instant) {
    const QLocale locale;
    return locale.toString(localDateTime(instant).time(), shortTimeFormat(locale));
}

}  // namespace larkspan
