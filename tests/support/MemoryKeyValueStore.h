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
        const auto* v = find(key);
        if (v && std::holds_alternative<std::int64_t>(*v)) return std::get<std::int64_t>(*v);
        return std::nullopt;
    }
    std::optional<double> real(const std::string& key) const override {
        const auto* v = find(key);
        if (v && std::holds_alternative<double>(*v)) return std::get<double>(*v);
        if (v && std::holds_alternative<std::int64_t>(*v)) return static_cast<double>(std::get<std::int64_t>(*v));
        return std::nullopt;
    }
    std::optional<std::string> text(const std::string& key) const override {
        const auto* v = find(key);
        if (v && std::holds_alternative<std::string>(*v)) return std::get<std::string>(*v);
        return std::nullopt;
    }
    void setInteger(const std::string& key, std::int64_t value) override { values[key] = value; }
    void setReal(const std::string& key, double value) override { values[key] = value; }
    void setText(const std::string& key, const std::string& value) override { values[key] = value; }

    std::map<std::string, Value> values;

private:
    const Value* find(const std::string& key) const {
        auto it = values.find(key);
        return it == values.end() ? nullptr : &it->second;
    }
};

}  // namespace larkspan::test
