// Pins the process's time zone (TZ) for the life of the object and puts the previous one back, so
// that tests of local days and hours do not depend on the machine they run on.
#pragma once

#include <cstdlib>
#include <ctime>
#include <optional>
#include <string>

namespace larkspan::test {

class ScopedTimeZone {
public:
    explicit ScopedTimeZone(const char* zone) {
        if (const char* old = std::getenv("TZ"))
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
