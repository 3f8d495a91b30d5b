// A browser bridge whose reports the test sets. Thread-safe.
#pragma once

#include <algorithm>
#include <mutex>

#include "Platform/BrowserBridge.h"

namespace larkspan::test {

class FakeBrowserBridge final : public BrowserBridge {
public:
    void setReports(std::vector<BrowserTabReport> reports) {
        std::lock_guard lock(mutex_);
        reports_ = std::move(reports);
    }
    std::optional<BrowserTabReport> latestReport(std::int64_t pid) override {
        std::lock_guard lock(mutex_);
        auto found = std::find_if(reports_.begin(), reports_.end(), [pid](auto& r) { return r.pid == pid; });
        return found == reports_.end() ? std::nullopt : std::optional(*found);
    }
    std::vector<BrowserTabReport> latestReports() override {
        std::lock_guard lock(mutex_);
        return reports_;
    }

private:
    std::mutex mutex_;
    std::vector<BrowserTabReport> reports_;
};

}  // namespace larkspan::test
