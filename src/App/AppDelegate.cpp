#include "App/AppDelegate.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <random>
#include <utility>

namespace larkspan {

namespace {

// Filled in after the user's own most used categories, until the popup offers six.
constexpr std::array<std::int64_t, 10> kDefaultPopupCategories{1, 4, 6, 10, 16, 17, 3, 9, 7, 8};
constexpr std::size_t kPopupCategoryCount = 6;
// The idle answer looks for the away row from a minute before the absence began.
constexpr double kIdleAnswerLeadSeconds = 60.0;
constexpr double kIdlePromptThresholdSeconds = 300.0;

// While the store refuses writes, each new report replaces the last banner.
constexpr const char* kWriteFailureNotificationID = "store-write-failure";

// A random (version 4) UUID in its usual text form.
std::string makeUUID() {
    static thread_local std::mt19937_64 generator{std::random_device{}()};
    std::uniform_int_distribution<unsigned> byte(0, 255);
    std::array<unsigned, 16> bytes{};
    for (auto& b : bytes)
        b = byte(generator);
    bytes[6] = (bytes[6] & 0x0F) | 0x40;
    bytes[8] = (bytes[8] & 0x3F) | 0x80;
    char text[37];
    std::snprintf(text, sizeof text, "%02X%02X%02X%02X-%02X%02X-%02X%02X-%02X%02X-%02X%02X%02X%02X%02X%02X",
                  bytes[0], bytes[1], bytes[2], bytes[3], bytes[4], bytes[5], bytes[6], bytes[7], bytes[8],
                  bytes[9], bytes[10], bytes[11], bytes[12], bytes[13], bytes[14], bytes[15]);
    return text;
}

}  // namespace

AppDelegate::AppDelegate(Database& database, const AppEnvironment& environment)
    : database_(database),
      env_(environment),
      activityMonitor_(std::make_shared<ActivityMonitor>(env_.workspace, env_.scripts, env_.clock,
                                                         env_.mainQueue, env_.timers, env_.notifications,
                                                         env_.monitorQueue)) {}

void AppDelegate::start() {
    launchApp();
}

void AppDelegate::launchApp() {
    if (sessionManager_)
        return;
    sessionManager_ =
        SessionManager::create(database_, categoryEngine_, env_.clock, env_.mainQueue, env_.timers);
    sessionManager_->onWriteFailure = [weak = weak_from_this()](const std::string& message) {
        if (auto self = weak.lock())
            self->reportWriteFailure(message);
    };
    pomodoroTimer_ = std::make_unique<PomodoroTimer>(env_.clock, env_.defaults, env_.sounds, env_.timers);
    pomodoroTimer_->onSessionComplete = [weak = weak_from_this()](PomodoroMode mode,
                                                                  std::optional<std::int64_t> task) {
        if (auto self = weak.lock())
            self->onSessionComplete(mode, task);
    };
    trayMenu_ = std::make_unique<TrayMenu>(*sessionManager_, database_, *pomodoroTimer_, env_.presenter,
                                           env_.mainQueue);
    requestAccessibilityPermission();
    startTracking();
    cancellables_.push_back(env_.notifications.observe(
        userReturnedFromIdle, [weak = weak_from_this()](const NotificationPayload& userInfo) {
            if (auto self = weak.lock())
                self->handleReturnFromIdle(userInfo);
        }));
}

void AppDelegate::stop() {
    activityMonitor_->stop();
    if (sessionManager_)
        sessionManager_->closeOpenSession();
}

void AppDelegate::openDashboard() {
    env_.presenter.openDashboard();
}

void AppDelegate::startTracking() {
    activityMonitor_->start();
    auto onMain = [weak = weak_from_this(),
                   &mainQueue = env_.mainQueue](std::function<void(AppDelegate&)> work) {
        mainQueue.post([weak, work = std::move(work)] {
            if (auto self = weak.lock())
                work(*self);
        });
    };
    cancellables_.push_back(activityMonitor_->currentActivity.subscribe([onMain](const auto& activity) {
        if (activity)
            onMain([sample = *activity](AppDelegate& self) { self.sessionManager_->process(sample); });
    }));
    // The first delivery is the value the session holds already, not a new session.
    auto first = std::make_shared<bool>(true);
    cancellables_.push_back(sessionManager_->currentSession.subscribe([onMain, first](const auto& session) {
        if (std::exchange(*first, false) || !session)
            return;
        onMain([](AppDelegate& self) { self.maybeShowApprovalPopup(); });
    }));
}

void AppDelegate::requestAccessibilityPermission() {
    if (env_.workspace.canReadWindows())
        return;
    const auto now = env_.clock.now();
    if (const auto last = env_.defaults.real(kLastAccessibilityPromptDateKey);
        last && now - *last < accessibilityPromptInterval)
        return;
    env_.defaults.setReal(kLastAccessibilityPromptDateKey, now);
    env_.workspace.promptForWindowAccess();
}

void AppDelegate::onSessionComplete(PomodoroMode mode, std::optional<std::int64_t> taskID) {
    if (mode == PomodoroMode::focus) {
        if (taskID)
            database_.incrementTodoPomo(*taskID);
        database_.incrementDailyPomoCount(env_.clock.now());
    }
    sendPomoNotification(mode);
}

void AppDelegate::sendPomoNotification(PomodoroMode mode) {
    switch (mode) {
        case PomodoroMode::focus:
            env_.notifier.notify(makeUUID(), "\U0001F345 Focus session complete!",
                                 "Great work! Time for a break.");
            break;
        case PomodoroMode::shortBreak:
            env_.notifier.notify(makeUUID(), "\u2615 Short break over", "Ready to focus again?");
            break;
        case PomodoroMode::longBreak:
            env_.notifier.notify(makeUUID(), "\U0001F33F Long break over", "Recharged and ready to go!");
            break;
    }
}

void AppDelegate::reportWriteFailure(const std::string& message) {
    const Date now = env_.clock.now();
    // Either way round: a clock set back must not silence the report for the hours it jumped.
    if (lastWriteFailureReport_ && std::fabs(now - *lastWriteFailureReport_) < writeFailureReportInterval)
        return;
    lastWriteFailureReport_ = now;
    const std::string text = "Larkspan cannot save your activity: " + message;
    std::fprintf(stderr, "%s\n", text.c_str());
    env_.notifier.notify(kWriteFailureNotificationID, text,
                         "Tracking goes on and saves again by itself once the database can be written.");
}

bool AppDelegate::canShowPopup() const {
    return env_.clock.now() - lastPopupTime_ > minPopupInterval;
}

void AppDelegate::markPopupShown() {
    lastPopupTime_ = env_.clock.now();
}

void AppDelegate::maybeShowApprovalPopup() {
    if (!canShowPopup())
        return;
    auto record = sessionManager_->nextPendingApproval();
    if (!record)
        return;
    markPopupShown();
    showApprovalPopup(*record);
}

void AppDelegate::handleReturnFromIdle(const NotificationPayload& userInfo) {
    const auto found = userInfo.find(userReturnedFromIdleSecondsKey);
    const double idleSeconds = found == userInfo.end() ? 0.0 : found->second;
    if (!(idleSeconds > kIdlePromptThresholdSeconds))
        return;
    if (!canShowPopup())
        return;
    markPopupShown();
    showReturnFromIdlePopup(idleSeconds);
}

void AppDelegate::showApprovalPopup(const ActivityRecord& record) {
    env_.presenter.closeApprovalPopup();
    const auto categories = database_.fetchCategories();
    auto top = database_.fetchTopCategoryIDs(static_cast<int>(kPopupCategoryCount));
    for (const auto id : kDefaultPopupCategories) {
        if (top.size() < kPopupCategoryCount && std::find(top.begin(), top.end(), id) == top.end())
            top.push_back(id);
    }
    env_.presenter.showApprovalPopup(
        record, categories, top,
        [weak = weak_from_this(), id = record.id](std::optional<std::int64_t> categoryID) {
            auto self = weak.lock();
            if (!self)
                return;
            if (categoryID)
                self->sessionManager_->resolveApproval(id, *categoryID);
            self->env_.presenter.closeApprovalPopup();
        });
}

void AppDelegate::showReturnFromIdlePopup(double idleDuration) {
    env_.presenter.closeIdlePopup();
    env_.presenter.showReturnFromIdlePopup(
        idleDuration, [weak = weak_from_this(), idleDuration](std::int64_t chosen) {
            auto self = weak.lock();
            if (!self)
                return;
            const auto now = self->env_.clock.now();
            const auto records =
                self->database_.fetchActivities(now - kIdleAnswerLeadSeconds - idleDuration, now);
            const auto away =
                std::find_if(records.rbegin(), records.rend(), [](const auto& r) { return r.isIdle(); });
            if (away != records.rend())
                self->database_.updateActivityCategory(away->id, chosen, true);
            self->env_.presenter.closeIdlePopup();
        });
}

}  // namespace larkspan
