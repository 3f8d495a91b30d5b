// What the application shell shows on the application's behalf: the two floating prompts, the
// dashboard, the tray's title and its popover. The Qt shell implements it; tests record the calls.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "App/StatusTitle.h"
#include "Classification/Category.h"
#include "Tracking/ActivityRecord.h"

namespace larkspan {

class AppPresenter {
public:
    // The approval popup answers with a category id, or with none to leave the activity pending.
    using ApprovalAnswer = std::function<void(std::optional<std::int64_t>)>;
    using IdleAnswer = std::function<void(std::int64_t categoryID)>;

    virtual ~AppPresenter() = default;

    // Shows the approval popup for `record`, offering `topCategoryIDs` first.
    virtual void showApprovalPopup(const ActivityRecord& record, const std::vector<Category>& categories,
                                   const std::vector<std::int64_t>& topCategoryIDs,
                                   ApprovalAnswer onResolve) = 0;
    // Orders the approval popup out; nothing when none is shown.
    virtual void closeApprovalPopup() = 0;
    virtual void showReturnFromIdlePopup(double idleDuration, IdleAnswer onResolve) = 0;
    virtual void closeIdlePopup() = 0;

    virtual void openDashboard() = 0;

    virtual void showStatusTitle(const StatusTitle& title) = 0;
    virtual void closePopover() = 0;
};

}  // namespace larkspan
