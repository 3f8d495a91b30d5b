// The review tab's logic: the activities waiting for a category, listed for settling in a batch.
// A card can teach (a category is picked: the answer becomes learned rules), accept the engine's
// suggestion without teaching ("Skip"), and the whole list can be accepted as it stands.
//
// Loads run off the main thread and may race the writes of this screen: `resolvedIDs` keeps every
// activity settled while the screen lives, so a load that read the store before a write cannot bring
// its card back. At most `listLimit` activities are listed, newest first; the next ones come once
// those are settled.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "Classification/Category.h"
#include "Data/Database.h"
#include "Tracking/ActivityRecord.h"
#include "Tracking/SessionManager.h"

namespace larkspan {

class PendingReview {
public:
    static constexpr int listLimit = 100;
    using IDs = std::unordered_set<std::int64_t>;

    // "59s" below a minute, "59m" below an hour, "1h 1m" from an hour on (integer division).
    static std::string formatDuration(std::int64_t seconds);
    // The categories a card offers, in their order: all but "Away / Break".
    static std::vector<Category> gridCategories(const std::vector<Category>& categories);
    // The grid's category that stands out on the card: the activity's own, if the grid offers it.
    static std::optional<std::int64_t> highlightedCategory(const ActivityRecord& activity,
                                                           const std::vector<Category>& grid);
    // What the store's pending list gives for `resolved`: the same, without the settled ones.
    // Runs on any thread.
    static std::vector<ActivityRecord> fetch(Database& database, const IDs& resolved);

    PendingReview(Database& database, SessionManager& sessionManager);

    const std::vector<ActivityRecord>& pending() const { return pending_; }
    bool isLoading() const { return isLoading_; }

    // Step one of a load: marks it under way and gives the settled ids to fetch() with.
    IDs beginLoad();
    // The load's result arrives: it becomes the list and the tracker's count is refreshed.
    void finishLoad(std::vector<ActivityRecord> pending);

    // A category picked on a card: the row gets it, approved, and the answer is learned.
    void approve(std::int64_t activityID, std::int64_t categoryID);
    // The card's "Skip": the activity keeps its suggestion ("Other" without one), approved, and
    // nothing is learned.
    void skip(std::int64_t activityID);
    // "Approve All as-is": every listed activity as skip() leaves it; the caller loads again.
    void approveAll();

private:
    void settleAsIs(const ActivityRecord& record);
    void removeListed(std::int64_t activityID);

    Database& database_;
    SessionManager& sessionManager_;
    std::vector<ActivityRecord> pending_;
    IDs resolvedIDs_;
    bool isLoading_ = false;
};

}  // namespace larkspan
