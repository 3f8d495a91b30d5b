// A value with subscribers. Every `set` reaches every subscriber, an equal value too; a new
// subscriber receives the current value at once. Main thread only: the owner assigns through
// MainQueue::post, so no lock is needed.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "Platform/Subscription.h"

namespace larkspan {

template <typename T>
class Published {
public:
    using Subscriber = std::function<void(const T&)>;

    Published() = default;
    explicit Published(T initial) : value_(std::move(initial)) {}
    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;

    const T& get() const { return value_; }

    void set(T value) {
        value_ = std::move(value);
        // A subscriber may subscribe or cancel while being called: deliver to a snapshot, and
        // skip those cancelled meanwhile.
        const auto ids = subscriberIds();
        for (auto id : ids) {
            auto found = subscribers_->find(id);
            if (found != subscribers_->end()) {
                auto deliver = found->second;
                deliver(value_);
            }
        }
    }

    [[nodiscard]] Subscription subscribe(Subscriber subscriber) {
        const auto id = nextId_++;
        (*subscribers_)[id] = subscriber;
        subscriber(value_);
        std::weak_ptr<Map> weak = subscribers_;
        return Subscription([weak, id] {
            if (auto map = weak.lock()) {
                map->erase(id);
            }
        });
    }

private:
    using Map = std::map<std::uint64_t, Subscriber>;

    std::vector<std::uint64_t> subscriberIds() const {
        std::vector<std::uint64_t> ids;
        ids.reserve(subscribers_->size());
        for (const auto& entry : *subscribers_) {
            ids.push_back(entry.first);
        }
        return ids;
    }

    T value_{};
    std::shared_ptr<Map> subscribers_ = std::make_shared<Map>();
    std::uint64_t nextId_ = 0;
};

}  // namespace larkspan
