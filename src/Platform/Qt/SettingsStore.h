// The user defaults in an INI file, by default $XDG_CONFIG_HOME/Larkspan/Larkspan.conf. Values are
// written as they come; a value that cannot be read as the asked type reads as absent. A file that
// cannot be written (read-only folder) keeps the values in memory for this run and is reported once.
#pragma once

#include <QSettings>
#include <QString>

#include "Platform/KeyValueStore.h"

namespace larkspan {

class SettingsStore final : public KeyValueStore {
public:
    SettingsStore();  // the standard location
    explicit SettingsStore(const QString& filePath);

    static QString defaultPath();

    std::optional<std::int64_t> integer(const std::string& key) const override;
    std::optional<double> real(const std::string& key) const override;
    std::optional<std::string> text(const std::string& key) const override;

    void setInteger(const std::string& key, std::int64_t value) override;
    void setReal(const std::string& key, double value) override;
    void setText(const std::string& key, const std::string& value) override;

private:
    void write(const std::string& key, const QVariant& value);

    mutable QSettings settings_;
    bool reportedWriteFailure_ = false;
};

}  // namespace larkspan
