// Remembers what the application asked its shell to show, and keeps the answer callbacks of the
// prompts so that a test can answer them as the user would.
#pragma once

#include <string>
#include <vector>

#include "App/AppPresenter.h"

namespace larkspan::test {

class RecordingPresenter final : public AppPresenter {
public:
    struct ApprovalPrompt {
        ActivityRecord record;
        std::vector<std::int64_t> topCategoryIDs;
        ApprovalAnswer onResolve;
    };
    struct IdlePrompt {
        double idleDuration;
        IdleAnswer onResolve;
    };

    void showApprovalPopup(const ActivityRecord& record, const std::vector<Category>&,
                           const std::vector<std::int64_t>& topCategoryIDs,
                           ApprovalAnswer onResolve) override {
        approvals.push_back({record, topCategoryIDs, std::move(onResolve)});
        calls.push_back("showApproval");
    }
    void closeApprovalPopup() override { calls.push_back("closeApproval"); }
    void showReturnFromIdlePopup(double idleDuration, IdleAnswer onResolve) override {
        idlePrompts.push_back({idleDuration, std::move(onResolve)});
        calls.push_back("showIdle");
    }
    void closeIdlePopup() override { calls.push_back("closeIdle"); }
    void openDashboard() override { calls.push_back("openDashboard"); }
    void showStatusTitle(const StatusTitle& title) override { titles.push_back(title); }
    void closePopover() override { calls.push_back("closePopover"); }

    std::vector<ApprovalPrompt> approvals;
    std::vector<IdlePrompt> idlePrompts;
    std::vector<StatusTitle> titles;
    std::vector<std::string> calls;  // every call but the titles, in order
};

}  // namespace larkspan::test
