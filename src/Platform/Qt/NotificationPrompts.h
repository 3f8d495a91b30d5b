// The two prompts as desktop notifications with action buttons, for Wayland sessions: there a
// client can neither place its window at the bottom right nor keep it above others, but a
// notification server that supports actions shows exactly that. The approval prompt offers the
// six top categories and "Skip" and answers none after 45 seconds or when dismissed; the
// welcome-back prompt offers its five answers and stays until answered, dismissing it counting as
// "Break". Both run the same card logic as the floating windows. Where the server has no actions
// (asked once with GetCapabilities), everything goes to the window presenter it wraps.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <memory>

#include "App/AppPresenter.h"
#include "Review/ApprovalPopup.h"
#include "Review/IdleReturn.h"

namespace larkspan {

class NotificationPrompts final : public QObject, public AppPresenter {
    Q_OBJECT
public:
    // `windows` shows what notifications cannot, and both prompts until the server has answered
    // that it supports actions. It must outlive this object.
    NotificationPrompts(AppPresenter& windows, QDBusConnection bus, QObject* parent = nullptr);

    bool usesNotifications() const { return actions_; }

    void showApprovalPopup(const ActivityRecord& record, const std::vector<Category>& categories,
                           const std::vector<std::int64_t>& topCategoryIDs,
                           ApprovalAnswer onResolve) override;
    void closeApprovalPopup() override;
    void showReturnFromIdlePopup(double idleDuration, IdleAnswer onResolve) override;
    void closeIdlePopup() override;
    void openDashboard() override { windows_.openDashboard(); }
    void showStatusTitle(const StatusTitle& title) override { windows_.showStatusTitle(title); }
    void closePopover() override { windows_.closePopover(); }

signals:
    // The server has answered whether it supports actions (or failed to answer); emitted once.
    void capabilitiesKnown();

private slots:
    void onActionInvoked(uint id, const QString& key);
    void onClosed(uint id, uint reason);

private:
    // One prompt on screen: the server's id once known, and whether it is to go.
    struct Shown {
        uint id = 0;
        bool closing = false;
    };
    // Sends a notification with `actions` (key, label pairs) that replaces `shown`'s, and records the new id.
    void notify(std::shared_ptr<Shown> shown, const QString& summary, const QString& body,
                const QStringList& actions);
    void close(const std::shared_ptr<Shown>& shown);

    AppPresenter& windows_;
    QDBusConnection bus_;
    bool actions_ = false;

    std::unique_ptr<ApprovalPopup> approval_;
    std::shared_ptr<Shown> approvalShown_;
    QTimer countdown_;
    std::unique_ptr<IdleReturn> idle_;
    std::shared_ptr<Shown> idleShown_;
};

}  // namespace larkspan
