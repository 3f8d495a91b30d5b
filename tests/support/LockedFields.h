// One mutex over a fake's fields, for fakes that the code under test calls from other threads
// while the test sets them.
#pragma once

#include <mutex>

namespace larkspan::test {

class LockedFields {
protected:
    template <typename T>
    T get(const T& field) const {
        std::lock_guard lock(mutex_);
        return field;
    }
    template <typename T>
    void put(T& field, const T& value) {
        std::lock_guard lock(mutex_);
        field = value;
    }

    mutable std::mutex mutex_;
};

}  // namespace larkspan::test
