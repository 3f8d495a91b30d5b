// A browser bridge whose reports the test sets. Thread-safe.
#pragma once

#include <mutex>
#include <vector>

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
        for (const auto& report : reports_) {
            if (report.pid == pid)
                return report;
        }
        return std::nullopt;
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
