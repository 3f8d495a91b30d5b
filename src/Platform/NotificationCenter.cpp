#include "Platform/NotificationCenter.h"

#include <vector>

namespace larkspan {

NotificationCenter::NotificationCenter() : state_(std::make_shared<State>()) {}

Subscription NotificationCenter::observe(const std::string& name, Observer observer) {
    std::uint64_t id;
    {
        std::lock_guard lock(state_->mutex);
        id = state_->nextId++;
        state_->observers.emplace(id, Entry{name, std::move(observer)});
    }
    std::weak_ptr<State> weak = state_;
    return Subscription([weak, id] {
        if (auto state = weak.lock()) {
            std::lock_guard lock(state->mutex);
            state->observers.erase(id);
        }
    });
}

void NotificationCenter::post(const std::string& name, const NotificationPayload& payload) {
    // Observers are called outside the lock so that they may post or observe in turn.
    std::vector<Observer> matching;
    {
        std::lock_guard lock(state_->mutex);
        for (const auto& [id, entry] : state_->observers) {
            if (entry.name == name) {
                matching.push_back(entry.observer);
            }
        }
    }
    for (const auto& observer : matching) {
        observer(payload);
    }
}

}  // namespace larkspan
