// Named notifications within the process, each with a small map of numbers as payload.
// Observers run synchronously on the posting thread, in the order they were added.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "Platform/Subscription.h"

namespace larkspan {

using NotificationPayload = std::map<std::string, double>;

class NotificationCenter {
public:
    using Observer = std::function<void(const NotificationPayload&)>;

    NotificationCenter();

    [[nodiscard]] Subscription observe(const std::string& name, Observer observer);
    void post(const std::string& name, const NotificationPayload& payload = {});

private:
    struct Entry {
        std::string name;
        Observer observer;
    };
    struct State {
        std::mutex mutex;
        std::map<std::uint64_t, Entry> observers;
        std::uint64_t nextId = 0;
    };
    std::shared_ptr<State> state_;
};

}  // namespace larkspan
