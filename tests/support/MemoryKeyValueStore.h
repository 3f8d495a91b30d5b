// User defaults held in memory. Values keep their written type; reading another type gives nothing,
// except integers read as reals.
#pragma once

#include <map>
#include <variant>

#include "Platform/KeyValueStore.h"

namespace larkspan::test {

class MemoryKeyValueStore final : public KeyValueStore {
public:
    using Value = std::variant<std::int64_t, double, std::string>;

    std::optional<std::int64_t> integer(const std::string& key) const override {
        return get<std::int64_t>(key);
    }
    std::optional<double> real(const std::string& key) const override {
        if (const auto whole = integer(key))
            return static_cast<double>(*whole);
        return get<double>(key);
    }
    std::optional<std::string> text(const std::string& key) const override { return get<std::string>(key); }
    void setInteger(const std::string& key, std::int64_t value) override { values[key] = value; }
    void setReal(const std::string& key, double value) override { values[key] = value; }
    void setText(const std::string& key, const std::string& value) override { values[key] = value; }

    std::map<std::string, Value> values;

private:
    template <typename T>
    std::optional<T> get(const std::string& key) const {
        const auto found = values.find(key);
        if (found == values.end() || !std::holds_alternative<T>(found->second))
            return std::nullopt;
        return std::get<T>(found->second);
    }
};

}  // namespace larkspan::test
