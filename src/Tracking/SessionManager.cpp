#include "Tracking/SessionManager.h"

#include <exception>
#include <string>
#include <utility>

#include "Platform/AsciiLower.h"
#include "Platform/OptionalText.h"

namespace larkspan {

namespace {

// Page titles that only name the service: remembering them would decide every page of it at once.
bool isBareServiceTitle(const std::string& title) {
    return title == "YouTube" || title == "Twitter" || title == "Reddit";
}

}  // namespace

std::shared_ptr<SessionManager> SessionManager::create(Database& db, CategoryEngine& engine,
                                                       const Clock& clock, MainQueue& mainQueue,
                                                       RepeatingTimer& timers) {
    std::shared_ptr<SessionManager> manager(new SessionManager(db, engine, clock, mainQueue));
    std::weak_ptr<SessionManager> weak = manager;
    manager->heartbeatTimer_ = timers.schedule(heartbeatInterval, [weak] {
        if (auto self = weak.lock())
            self->heartbeat();
    });
    manager->refreshApprovalCount();
    manager->refreshLearnedRules();
    manager->categoriesChanged();
    return manager;
}

SessionManager::SessionManager(Database& db, CategoryEngine& engine, const Clock& clock, MainQueue& mainQueue)
    : db_(db), engine_(engine), clock_(clock), mainQueue_(mainQueue), sessionStartTime_(clock.now()) {}

void SessionManager::process(const RawActivity& activity) {
    if (currentActivity_ == activity)
        return;

    const Date now = clock_.now();
    if (currentActivity_)
        closeSession(now);

    currentActivity_ = activity;
    sessionStartTime_ = now;

    if (activity.isIdle) {
        insertSession(ActivityRecord::idle(sessionStartTime_, storableCategory(category_id::awayBreak)));
        return;
    }

    const auto result = engine_.classify(activity.appName, activity.bundleID, activity.windowTitle,
                                         activity.url, activity.urlDomain);
    ActivityRecord record;
    record.appName = activity.appName;
    record.bundleID = activity.bundleID;
    record.windowTitle = activity.windowTitle;
    record.url = activity.url;
    record.urlDomain = activity.urlDomain;
    record.categoryID = storableCategory(result.categoryID);
    record.confidence = result.confidence;
    record.needsApproval = result.needsApproval();
    record.isApproved = !record.needsApproval;
    record.startTime = sessionStartTime_;
    insertSession(std::move(record));
}

void SessionManager::closeOpenSession() {
    if (currentActivity_)
        closeSession(clock_.now());
    currentActivity_.reset();
}

void SessionManager::closeSession(Date now) {
    const std::int64_t duration = wholeSecondsBetween(sessionStartTime_, now);
    const bool tooShort = minSessionDuration > static_cast<double>(duration);
    if (sessionID_ > 0 && tooShort) {
        try {
            db_.run("DELETE FROM activities WHERE id=?", sessionID_);
        } catch (const std::exception&) {
            // The short row stays with what its last heartbeat wrote.
        }
    } else if (sessionID_ > 0) {
        db_.updateActivityEnd(sessionID_, now, duration);
    } else if (unstored_ && !tooShort) {
        db_.reopenIfReadOnly();
        unstored_->endTime = now;
        unstored_->durationSeconds = duration;
        try {
            db_.insertActivity(*unstored_);
        } catch (const std::exception& error) {
            if (onWriteFailure)
                onWriteFailure(error.what());
        }
    }
    sessionID_ = -1;
    unstored_.reset();
    // A row deleted as too short may have been counted as pending when it was inserted.
    refreshApprovalCount();
}

void SessionManager::insertSession(ActivityRecord record) {
    try {
        sessionID_ = db_.insertActivity(record);
    } catch (const std::exception& error) {
        unstored_ = std::move(record);
        if (onWriteFailure)
            onWriteFailure(error.what());
        return;
    }
    unstored_.reset();
    record.id = sessionID_;
    std::weak_ptr<SessionManager> weak = weak_from_this();
    const bool pending = record.needsApproval;
    mainQueue_.post([weak, record = std::move(record)] {
        if (auto self = weak.lock())
            self->currentSession.set(record);
    });
    if (pending) {
        // Behind the session's own post, so subscribers see the session first.
        mainQueue_.post([weak] {
            if (auto self = weak.lock())
                self->pendingApprovalCount.set(self->pendingApprovalCount.get() + 1);
        });
    }
}

void SessionManager::heartbeat() {
    const Date now = clock_.now();
    const std::int64_t duration = wholeSecondsBetween(sessionStartTime_, now);
    if (sessionID_ > 0) {
        db_.updateActivityEnd(sessionID_, now, duration);
    } else if (unstored_) {
        db_.reopenIfReadOnly();
        ActivityRecord retry = *unstored_;
        retry.endTime = now;
        retry.durationSeconds = duration;
        insertSession(std::move(retry));
    }
}

std::int64_t SessionManager::storableCategory(std::int64_t categoryID) const {
    // An empty catalogue means the read failed (Other is never deleted): trust the engine then.
    if (categoryIDs_.empty() || categoryIDs_.contains(categoryID))
        return categoryID;
    return category_id::other;
}

void SessionManager::refreshApprovalCount() {
    const std::int64_t count = db_.pendingApprovalCount();
    std::weak_ptr<SessionManager> weak = weak_from_this();
    mainQueue_.post([weak, count] {
        if (auto self = weak.lock())
            self->pendingApprovalCount.set(count);
    });
}

void SessionManager::refreshLearnedRules() {
    engine_.learnedRules = db_.fetchLearnedRules();
}

void SessionManager::categoriesChanged() {
    std::unordered_set<std::int64_t> ids;
    for (const auto& category : db_.fetchCategories())
        ids.insert(category.id);
    categoryIDs_ = std::move(ids);
}

std::optional<ActivityRecord> SessionManager::nextPendingApproval() {
    auto pending = db_.fetchPendingApprovals(1);
    if (pending.empty())
        return std::nullopt;
    return std::move(pending.front());
}

void SessionManager::resolveApproval(std::int64_t activityID, std::int64_t categoryID) {
    db_.updateActivityCategory(activityID, categoryID, true);
    if (const auto record = db_.fetchActivity(activityID)) {
        // The same mixed test as classification, so what is saved here is what it looks up.
        const bool isMixed = record->urlDomain && CategoryEngine::mixedContentDomains().contains(
                                                      std::string(AsciiLower(*record->urlDomain).view()));
        if (!isMixed) {
            if (hasText(record->urlDomain))
                db_.saveLearnedRule("domain", *record->urlDomain, categoryID);
            if (hasText(record->bundleID))
                db_.saveLearnedRule("bundle_id", *record->bundleID, categoryID);
            db_.saveLearnedRule("app_name", record->appName, categoryID);
        } else {
            if (hasText(record->url))
                db_.saveLearnedRule("url", *record->url, categoryID);
            if (hasText(record->windowTitle) && !isBareServiceTitle(*record->windowTitle))
                db_.saveLearnedRule("title", *record->windowTitle, categoryID);
        }
        refreshLearnedRules();
    }
    refreshApprovalCount();
}

}  // namespace larkspan
