// Small persistent settings (the user defaults). Instants are stored as seconds since 1970, days
// as "yyyy-MM-dd" text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace larkspan {

class KeyValueStore {
public:
    virtual ~KeyValueStore() = default;
    // Absent when the key is missing or its value cannot be read as the asked type.
    virtual std::optional<std::int64_t> integer(const std::string& key) const = 0;
    virtual std::optional<double> real(const std::string& key) const = 0;
    virtual std::optional<std::string> text(const std::string& key) const = 0;

    virtual void setInteger(const std::string& key, std::int64_t value) = 0;
    virtual void setReal(const std::string& key, double value) = 0;
    virtual void setText(const std::string& key, const std::string& value) = 0;
};

}  // namespace larkspan
