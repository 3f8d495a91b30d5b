// Pins the process's local time zone (TZ) for one test and restores the previous setting after it,
// so that tests of local days give the same answer on every machine.
#pragma once

#include <stdlib.h>
#include <time.h>

#include <optional>
#include <string>

namespace larkspan::test {

class ScopedTimeZone {
public:
    explicit ScopedTimeZone(const char* zone) {
        if (const char* old = getenv("TZ"))
            previous_ = old;
        setenv("TZ", zone, 1);
        tzset();
    }
    ~ScopedTimeZone() {
        if (previous_) {
            setenv("TZ", previous_->c_str(), 1);
        } else {
            unsetenv("TZ");
        }
        tzset();
    }
    ScopedTimeZone(const ScopedTimeZone&) = delete;
    ScopedTimeZone& operator=(const ScopedTimeZone&) = delete;

private:
    std::optional<std::string> previous_;
};

}  // namespace larkspan::test
