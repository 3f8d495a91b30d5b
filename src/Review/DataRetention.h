// Throwing old data away from the settings tab. Only activities lose rows — learned rules, categories,
// tasks and the focus counts stay — and the cut is on the start alone: an activity that began before
// the cut goes whole, one that began at it stays whole.
//
// The delete runs at once on the caller's thread beside the store's queue, and a failure (a read-only
// or damaged file) is dropped: nothing changes and the tracker goes on. Deleted rows leave free pages
// in the file; compact() gives them back to the disk and is meant for a worker thread.
#pragma once

#include "Data/Database.h"
#include "Platform/Clock.h"

namespace larkspan {

enum class RetentionPeriod { threeMonths, oneYear };

// Seconds kept before now: 90 days, or 365.
double retentionSeconds(RetentionPeriod period);

// Deletes the activities that started before `now` less the period. False when the store refused.
bool deleteDataOlderThan(Database& database, RetentionPeriod period, Date now);

// Rewrites the file without its free pages and truncates the write-ahead log, so the space deleted
// rows held is returned. Slow on a large store: call it off the main thread. False when the store
// refused (statements in progress on the connection, a read-only file); the data is untouched then.
bool compact(Database& database);

}  // namespace larkspan
