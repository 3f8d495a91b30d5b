#include "Review/PendingReview.h"

#include <algorithm>
#include <utility>

namespace larkspan {

namespace {

constexpr const char* awayBreakName = "Away / Break";

}  // namespace

std::string PendingReview::formatDuration(std::int64_t seconds) {
    if (seconds < 60)
        return std::to_string(seconds) + "s";
    if (seconds < 3600)
        return std::to_string(seconds / 60) + "m";
    return std::to_string(seconds / 3600) + "h " + std::to_string(seconds % 3600 / 60) + "m";
}

std::vector<Category> PendingReview::gridCategories(const std::vector<Category>& categories) {
    std::vector<Category> grid;
    std::copy_if(categories.begin(), categories.end(), std::back_inserter(grid),
                 [](const Category& category) { return category.name != awayBreakName; });
    return grid;
}

std::optional<std::int64_t> PendingReview::highlightedCategory(const ActivityRecord& activity,
                                                               const std::vector<Category>& grid) {
    const Category* suggested = categoryWithID(grid, activity.categoryID);
    return suggested ? std::optional(suggested->id) : std::nullopt;
}

std::vector<ActivityRecord> PendingReview::fetch(Database& database, const IDs& resolved) {
    auto records = database.fetchPendingApprovals(listLimit);
    std::erase_if(records,
                  [&resolved](const ActivityRecord& record) { return resolved.contains(record.id); });
    return records;
}

PendingReview::PendingReview(Database& database, SessionManager& sessionManager)
    : database_(database), sessionManager_(sessionManager) {}

PendingReview::IDs PendingReview::beginLoad() {
    isLoading_ = true;
    return resolvedIDs_;
}

void PendingReview::finishLoad(std::vector<ActivityRecord> pending) {
    // A write of this screen may have landed while the load ran.
    std::erase_if(pending, [this](const ActivityRecord& record) { return resolvedIDs_.contains(record.id); });
    pending_ = std::move(pending);
    isLoading_ = false;
    sessionManager_.refreshApprovalCount();
}

void PendingReview::approve(std::int64_t activityID, std::int64_t categoryID) {
    resolvedIDs_.insert(activityID);
    sessionManager_.resolveApproval(activityID, categoryID);
    removeListed(activityID);
}

void PendingReview::skip(std::int64_t activityID) {
    const auto found =
        std::find_if(pending_.begin(), pending_.end(),
                     [activityID](const ActivityRecord& record) { return record.id == activityID; });
    if (found == pending_.end())
        return;
    resolvedIDs_.insert(activityID);
    settleAsIs(*found);
    removeListed(activityID);
    sessionManager_.refreshApprovalCount();
}

void PendingReview::approveAll() {
    for (const auto& record : pending_)
        resolvedIDs_.insert(record.id);
    for (const auto& record : pending_)
        settleAsIs(record);
}

void PendingReview::settleAsIs(const ActivityRecord& record) {
    database_.updateActivityCategory(record.id, record.categoryID.value_or(category_id::other), true);
}

void PendingReview::removeListed(std::int64_t activityID) {
    std::erase_if(pending_, [activityID](const ActivityRecord& record) { return record.id == activityID; });
}

}  // namespace larkspan
