#include "Platform/Qt/LazyNotificationPrompts.h"

#include <QDBusConnection>

#include "Platform/Qt/SessionBus.h"

namespace larkspan {

LazyNotificationPrompts::LazyNotificationPrompts(AppPresenter& windows, QObject* parent)
    : QObject(parent), windows_(windows) {}

void LazyNotificationPrompts::whenReady(Show& slot, Show show) {
    if (ready_) {
        show(*prompts_);
        return;
    }
    slot = std::move(show);
    if (std::exchange(asked_, true))
        return;
    SessionBus::whenAnswered(this, [this] {
        prompts_ = std::make_unique<NotificationPrompts>(windows_, QDBusConnection::sessionBus());
        connect(prompts_.get(), &NotificationPrompts::capabilitiesKnown, this, [this] {
            ready_ = true;
            for (Show* waiting : {&waitingApproval_, &waitingIdle_}) {
                if (auto show = std::exchange(*waiting, {}))
                    show(*prompts_);
            }
        });
    });
}

void LazyNotificationPrompts::showApprovalPopup(const ActivityRecord& record,
                                                const std::vector<Category>& categories,
                                                const std::vector<std::int64_t>& topCategoryIDs,
                                                ApprovalAnswer onResolve) {
    whenReady(waitingApproval_, [=, onResolve = std::move(onResolve)](NotificationPrompts& prompts) {
        prompts.showApprovalPopup(record, categories, topCategoryIDs, onResolve);
    });
}

void LazyNotificationPrompts::closeApprovalPopup() {
    waitingApproval_ = {};
    if (ready_)
        prompts_->closeApprovalPopup();
}

void LazyNotificationPrompts::showReturnFromIdlePopup(double idleDuration, IdleAnswer onResolve) {
    whenReady(waitingIdle_, [idleDuration, onResolve = std::move(onResolve)](NotificationPrompts& prompts) {
        prompts.showReturnFromIdlePopup(idleDuration, onResolve);
    });
}

void LazyNotificationPrompts::closeIdlePopup() {
    waitingIdle_ = {};
    if (ready_)
        prompts_->closeIdlePopup();
}

}  // namespace larkspan
