// Turns the stream of samples into rows of the store, and learns from the user's answers.
//
// One session is open at a time: the sample that opened it, when it began and the row it was stored
// under. The row is inserted the moment the session opens, so a running session is already in the
// store; a 30-second heartbeat keeps its end time fresh, and a session that ends under 5 whole
// seconds is deleted again. An orderly end of the process closes the open session like any change
// of activity; after a crash the open row keeps what its last heartbeat wrote.
//
//   samples   A  A  A  B  B  B  B  B  B  B  B  A   one every 4 s; equal ones change nothing
//   rows      [A──────)[B─────────────────────)[A…   each inserted at its first sample
//   heartbeat                       ^ every 30 s: the open row's end and duration
//
// The session is in one of three states: none (no sample yet), stored (a row belongs to it) or
// unstored (its insert failed; equal samples are still ignored, and the insert is tried again at
// each heartbeat and, with its end, when the session closes), so a busy or read-only store costs
// no time once it takes writes again. A store opened read-only is opened afresh before each retry,
// so a file made writable again is written without a restart.
//
// Threads: everything here runs on the main thread, including the store calls, which wait for
// the store's own queue. currentSession and pendingApprovalCount are assigned only by work posted to
// the main queue, even from the main thread, so a subscriber sees a new session after process()
// has returned. Posted work and the heartbeat hold the manager weakly: make it with create().
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_set>

#include "Classification/CategoryEngine.h"
#include "Data/Database.h"
#include "Platform/Clock.h"
#include "Platform/MainQueue.h"
#include "Platform/Published.h"
#include "Platform/RepeatingTimer.h"
#include "Tracking/ActivityRecord.h"

namespace larkspan {

class SessionManager : public std::enable_shared_from_this<SessionManager> {
public:
    // Main thread. Every argument must outlive the manager. Starts the heartbeat, then refreshes the
    // pending count (posted) and the engine's learned rules, and reads the category catalogue.
    static std::shared_ptr<SessionManager> create(Database& db, CategoryEngine& engine, const Clock& clock,
                                                  MainQueue& mainQueue, RepeatingTimer& timers);

    SessionManager(const SessionManager&) = delete;
    SessionManager& operator=(const SessionManager&) = delete;

    // Main thread; the one entry for samples. A sample equal to the open session's (same
    // application, bundle id, domain and idle flag) returns at once: no store, no engine, no post.
    // Otherwise closes the open row (deleted under minSessionDuration, else given its end), then
    // inserts the new one: an idle sample as an away span, an active one with the engine's category.
    // A failed insert leaves the new session unstored and publishes nothing.
    void process(const RawActivity& activity);
    // Main thread. Ends the open session as a change of activity would (its row gets its end, or
    // goes when under minSessionDuration); the next sample opens a new one. For a quit or a logout.
    void closeOpenSession();

    // Counts the pending activities on the caller's thread and posts the assignment of that number.
    void refreshApprovalCount();
    // Gives the engine the learned rules as stored now.
    void refreshLearnedRules();
    // Re-reads the ids of the category catalogue. Call it after any category is added or deleted;
    // a session whose category is no longer in the catalogue is stored under "Other" (21).
    void categoriesChanged();
    // The newest pending activity, or nothing.
    std::optional<ActivityRecord> nextPendingApproval();
    // Main thread. Gives the row `activityID` the category, approved, and remembers the answer as
    // learned rules: on a plain domain or application by domain, bundle id and application name; on
    // a mixed service by address and page title only. An unknown id changes no rule. Always ends
    // with refreshApprovalCount().
    void resolveApproval(std::int64_t activityID, std::int64_t categoryID);

    // The session in progress as last stored; absent until the first stored session.
    Published<std::optional<ActivityRecord>> currentSession;
    // Activities waiting for the user. Runs ahead of the store's count, which only counts rows of 30
    // seconds or more: it goes up at the insert of a row that needs approval, and meets the store's
    // figure again whenever a session closes and at every refreshApprovalCount().
    Published<std::int64_t> pendingApprovalCount{0};
    // Main thread; called with SQLite's message each time a session's row is refused.
    std::function<void(const std::string&)> onWriteFailure;

    static constexpr double minSessionDuration = 5.0;  // seconds; shorter sessions leave no row
    static constexpr double heartbeatInterval = 30.0;  // seconds

private:
    SessionManager(Database& db, CategoryEngine& engine, const Clock& clock, MainQueue& mainQueue);

    void heartbeat();
    // Deletes the open row when it lasted under minSessionDuration, else writes its end; an
    // unstored session of that length is inserted whole. Then resyncs the pending count.
    void closeSession(Date now);
    // Inserts `record` as the open session's row and posts it as currentSession (and a pending
    // one more when it needs approval); a refused insert keeps it as unstored_ and reports.
    void insertSession(ActivityRecord record);
    // `categoryID` if the catalogue holds it (or could not be read), else "Other".
    std::int64_t storableCategory(std::int64_t categoryID) const;

    Database& db_;
    CategoryEngine& engine_;
    const Clock& clock_;
    MainQueue& mainQueue_;

    std::optional<RawActivity> currentActivity_;  // the sample that opened the session
    Date sessionStartTime_;
    std::int64_t sessionID_ = -1;             // row of the open session; -1 while none belongs to it
    std::optional<ActivityRecord> unstored_;  // the open session's row while the store refuses it
    std::unique_ptr<TimerHandle> heartbeatTimer_;
    std::unordered_set<std::int64_t> categoryIDs_;  // the catalogue, as of the last read
};

}  // namespace larkspan
