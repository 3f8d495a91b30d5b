#include "Platform/Qt/SettingsStore.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <cstdio>

#include "Platform/PrivateFiles.h"

namespace larkspan {

namespace {

QString qKey(const std::string& key) {
    return QString::fromStdString(key);
}

}  // namespace

QString SettingsStore::defaultPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           "/Larkspan/Larkspan.conf";
}

SettingsStore::SettingsStore() : SettingsStore(defaultPath()) {}

SettingsStore::SettingsStore(const QString& filePath) : settings_(filePath, QSettings::IniFormat) {
    const QFileInfo file(filePath);
    restrictToOwner(file.absolutePath().toStdString(), {file.fileName().toStdString()});
}

std::optional<std::int64_t> SettingsStore::integer(const std::string& key) const {
    const QVariant value = settings_.value(qKey(key));
    bool ok = false;
    const qlonglong number = value.toLongLong(&ok);
    if (!value.isValid() || !ok)
        return std::nullopt;
    return number;
}

std::optional<double> SettingsStore::real(const std::string& key) const {
    const QVariant value = settings_.value(qKey(key));
    bool ok = false;
    const double number = value.toDouble(&ok);
    if (!value.isValid() || !ok)
        return std::nullopt;
    return number;
}

std::optional<std::string> SettingsStore::text(const std::string& key) const {
    const QVariant value = settings_.value(qKey(key));
    if (!value.isValid() || !value.canConvert<QString>())
        return std::nullopt;
    return value.toString().toStdString();
}

void SettingsStore::setInteger(const std::string& key, std::int64_t value) {
    write(key, QVariant::fromValue<qlonglong>(value));
}

void SettingsStore::setReal(const std::string& key, double value) {
    write(key, value);
}

void SettingsStore::setText(const std::string& key, const std::string& value) {
    write(key, QString::fromStdString(value));
}

void SettingsStore::write(const std::string& key, const QVariant& value) {
    settings_.setValue(qKey(key), value);
    settings_.sync();
    if (settings_.status() != QSettings::NoError && !reportedWriteFailure_) {
        reportedWriteFailure_ = true;
        std::fprintf(stderr, "Larkspan: settings cannot be saved to %s; they last until quit.\n",
                     qPrintable(settings_.fileName()));
    }
}

}  // namespace larkspan
