// The Qt shell's side of AppPresenter: the tray shows the status title. The floating prompts and
// the dashboard are announced on standard error until their windows exist.
#pragma once

#include "App/AppPresenter.h"
#include "App/ui/TrayIcon.h"

namespace larkspan {

class QtAppPresenter final : public AppPresenter {
public:
    TrayIcon& tray() { return tray_; }

    void showApprovalPopup(const ActivityRecord& record, const std::vector<Category>& categories,
                           const std::vector<std::int64_t>& topCategoryIDs,
                           ApprovalAnswer onResolve) override;
    void closeApprovalPopup() override;
    void showReturnFromIdlePopup(double idleDuration, IdleAnswer onResolve) override;
    void closeIdlePopup() override;
    void openDashboard() override;
    void showStatusTitle(const StatusTitle& title) override;
    void closePopover() override;

private:
    TrayIcon tray_;
};

}  // namespace larkspan
