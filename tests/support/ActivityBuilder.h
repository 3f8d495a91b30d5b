// Builds the activity records that grouping and layout tests feed in: a closed visit of a given
// length by default, with application, title, site and category set by chained calls.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "Tracking/ActivityRecord.h"

namespace larkspan::test {

class ActivityBuilder {
public:
    ActivityBuilder(std::int64_t id, Date start, std::int64_t seconds) {
        record_.id = id;
        record_.appName = "Notes";
        record_.startTime = start;
        record_.endTime = start + static_cast<double>(seconds);
        record_.durationSeconds = seconds;
    }

    // An away span, the way the tracker stores one.
    static ActivityBuilder away(std::int64_t id, Date start, std::int64_t seconds) {
        ActivityBuilder builder(id, start, seconds);
        builder.record_.appName = kAwayAppName;
        builder.record_.windowTitle = kAwayTitle;
        builder.record_.categoryID = 15;
        return builder;
    }

    ActivityBuilder& app(std::string name, std::optional<std::string> bundleID = std::nullopt) {
        record_.appName = std::move(name);
        record_.bundleID = std::move(bundleID);
        return *this;
    }
    ActivityBuilder& title(std::optional<std::string> text) {
        record_.windowTitle = std::move(text);
        return *this;
    }
    ActivityBuilder& domain(std::optional<std::string> host) {
        record_.urlDomain = std::move(host);
        return *this;
    }
    ActivityBuilder& category(std::optional<std::int64_t> id) {
        record_.categoryID = id;
        return *this;
    }
    // Waiting for the user's answer.
    ActivityBuilder& pending(double confidence) {
        record_.confidence = confidence;
        record_.needsApproval = true;
        record_.isApproved = false;
        return *this;
    }
    // Still running: no end time yet, only the duration of the last heartbeat.
    ActivityBuilder& open() {
        record_.endTime.reset();
        return *this;
    }
    ActivityBuilder& endingAt(Date end) {
        record_.endTime = end;
        return *this;
    }

    operator ActivityRecord() const { return record_; }

private:
    ActivityRecord record_;
};

}  // namespace larkspan::test
