// NotificationPrompts made the first time a prompt is due, so that launching does no bus work for
// it: the prompt waits for the session bus to answer (SessionBus) and for the notification server
// to say whether it supports actions, then goes out as a notification or, failing that, a window.
// Closing a prompt that is still waiting drops it.
#pragma once

#include <QObject>

#include <functional>
#include <memory>

#include "App/AppPresenter.h"
#include "Platform/Qt/NotificationPrompts.h"

namespace larkspan {

class LazyNotificationPrompts final : public QObject, public AppPresenter {
public:
    // `windows` must outlive this object.
    explicit LazyNotificationPrompts(AppPresenter& windows, QObject* parent = nullptr);

    // Null until the first prompt has been asked for and the bus has answered.
    const NotificationPrompts* prompts() const { return prompts_.get(); }

    void showApprovalPopup(const ActivityRecord& record, const std::vector<Category>& categories,
                           const std::vector<std::int64_t>& topCategoryIDs,
                           ApprovalAnswer onResolve) override;
    void closeApprovalPopup() override;
    void showReturnFromIdlePopup(double idleDuration, IdleAnswer onResolve) override;
    void closeIdlePopup() override;
    void openDashboard() override { windows_.openDashboard(); }
    void showStatusTitle(const StatusTitle& title) override { windows_.showStatusTitle(title); }
    void closePopover() override { windows_.closePopover(); }

private:
    using Show = std::function<void(NotificationPrompts&)>;
    // Runs `show` now when the prompts are ready, else keeps it in `slot` (replacing what waited there).
    void whenReady(Show& slot, Show show);

    AppPresenter& windows_;
    std::unique_ptr<NotificationPrompts> prompts_;
    bool asked_ = false;
    bool ready_ = false;
    Show waitingApproval_;
    Show waitingIdle_;
};

}  // namespace larkspan
