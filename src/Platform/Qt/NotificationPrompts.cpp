// Notification prompts. A card object is replaced only by the next show, never inside its own
// answer: the answer calls back into the delegate, which closes the prompt while the card's method
// is still running.
#include "Platform/Qt/NotificationPrompts.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

namespace larkspan {

namespace {

const char* const kService = "org.freedesktop.Notifications";
const char* const kPath = "/org/freedesktop/Notifications";
const char* const kInterface = "org.freedesktop.Notifications";
constexpr int kCallTimeoutMs = 2000;
const QString kCategoryKey = QStringLiteral("category-");
const QString kOptionKey = QStringLiteral("option-");
const QString kSkipKey = QStringLiteral("skip");

QString qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

NotificationPrompts::NotificationPrompts(AppPresenter& windows, QDBusConnection bus, QObject* parent)
    : QObject(parent), windows_(windows), bus_(std::move(bus)) {
    bus_.connect(kService, kPath, kInterface, "ActionInvoked", this, SLOT(onActionInvoked(uint, QString)));
    bus_.connect(kService, kPath, kInterface, "NotificationClosed", this, SLOT(onClosed(uint, uint)));
    countdown_.setInterval(static_cast<int>(ApprovalPopup::tickInterval * 1000));
    connect(&countdown_, &QTimer::timeout, this, [this] {
        if (!approval_)
            return;
        approval_->tick();
        if (!approval_->isTimerRunning())
            countdown_.stop();
    });
    auto* pending = new QDBusPendingCallWatcher(
        bus_.asyncCall(QDBusMessage::createMethodCall(kService, kPath, kInterface, "GetCapabilities"),
                       kCallTimeoutMs),
        this);
    connect(pending, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        finished->deleteLater();
        const QDBusPendingReply<QStringList> reply = *finished;
        actions_ = !reply.isError() && reply.value().contains(QStringLiteral("actions"));
        emit capabilitiesKnown();
    });
}

void NotificationPrompts::showApprovalPopup(const ActivityRecord& record,
                                            const std::vector<Category>& categories,
                                            const std::vector<std::int64_t>& topCategoryIDs,
                                            ApprovalAnswer onResolve) {
    if (!actions_) {
        windows_.showApprovalPopup(record, categories, topCategoryIDs, std::move(onResolve));
        return;
    }
    approval_ = std::make_unique<ApprovalPopup>(record, categories, topCategoryIDs, std::move(onResolve));
    QStringList actions;
    for (const auto& category : approval_->gridCategories())
        actions << kCategoryKey + QString::number(category.id) << qt(ApprovalPopup::menuTitle(category));
    actions << kSkipKey << QStringLiteral("Skip");
    auto previous = std::exchange(approvalShown_, std::make_shared<Shown>());
    approvalShown_->id = previous ? previous->id : 0;
    notify(approvalShown_, QStringLiteral("Quick check-in"),
           qt(approval_->record().displayTitle()) + QStringLiteral("\nWhat were you doing?"), actions);
    approval_->startCountdown();
    countdown_.start();
}

void NotificationPrompts::closeApprovalPopup() {
    windows_.closeApprovalPopup();
    countdown_.stop();
    if (approval_)
        approval_->cardGone();
    close(approvalShown_);
}

void NotificationPrompts::showReturnFromIdlePopup(double idleDuration, IdleAnswer onResolve) {
    if (!actions_) {
        windows_.showReturnFromIdlePopup(idleDuration, std::move(onResolve));
        return;
    }
    idle_ = std::make_unique<IdleReturn>(idleDuration, std::move(onResolve));
    QStringList actions;
    for (std::size_t i = 0; i < IdleReturn::options.size(); ++i) {
        const auto& option = IdleReturn::options[i];
        actions << kOptionKey + QString::number(i) << qt(option.icon) + ' ' + qt(option.label);
    }
    auto previous = std::exchange(idleShown_, std::make_shared<Shown>());
    idleShown_->id = previous ? previous->id : 0;
    notify(idleShown_, QStringLiteral("Welcome back!"), qt(idle_->message()), actions);
}

void NotificationPrompts::closeIdlePopup() {
    windows_.closeIdlePopup();
    close(idleShown_);
}

void NotificationPrompts::onActionInvoked(uint id, const QString& key) {
    if (approvalShown_ && approvalShown_->id == id && approval_ && !approval_->isAnswered()) {
        countdown_.stop();
        if (key == kSkipKey)
            approval_->resolve(std::nullopt);
        else if (key.startsWith(kCategoryKey))
            approval_->resolve(key.mid(kCategoryKey.size()).toLongLong());
    } else if (idleShown_ && idleShown_->id == id && idle_ && !idle_->isAnswered() &&
               key.startsWith(kOptionKey)) {
        idle_->choose(key.mid(kOptionKey.size()).toULongLong());
    }
}

void NotificationPrompts::onClosed(uint id, uint) {
    // Closed by the user or by the server: the same as "Skip" and "Dismiss".
    if (approvalShown_ && approvalShown_->id == id && !approvalShown_->closing && approval_ &&
        !approval_->isAnswered()) {
        countdown_.stop();
        approval_->resolve(std::nullopt);
    } else if (idleShown_ && idleShown_->id == id && !idleShown_->closing && idle_ && !idle_->isAnswered()) {
        idle_->dismiss();
    }
}

void NotificationPrompts::notify(std::shared_ptr<Shown> shown, const QString& summary, const QString& body,
                                 const QStringList& actions) {
    auto call = QDBusMessage::createMethodCall(kService, kPath, kInterface, "Notify");
    const QVariantMap hints{
        {"urgency", QVariant::fromValue<uchar>(1)}, {"resident", false}, {"desktop-entry", "larkspan"}};
    // Never expires on its own: the card's countdown decides.
    call << QString("Larkspan") << shown->id << QString() << summary << body << actions << hints << 0;
    auto* pending = new QDBusPendingCallWatcher(bus_.asyncCall(call, kCallTimeoutMs), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this,
            [this, shown](QDBusPendingCallWatcher* finished) {
                finished->deleteLater();
                const QDBusPendingReply<uint> reply = *finished;
                if (reply.isError())
                    return;
                shown->id = reply.value();
                // Answered or replaced before the server replied.
                if (shown->closing)
                    close(shown);
            });
}

void NotificationPrompts::close(const std::shared_ptr<Shown>& shown) {
    if (!shown)
        return;
    shown->closing = true;
    if (shown->id == 0)
        return;
    auto call = QDBusMessage::createMethodCall(kService, kPath, kInterface, "CloseNotification");
    call << shown->id;
    bus_.asyncCall(call, kCallTimeoutMs);
}

}  // namespace larkspan
