#include "Review/DataRetention.h"

namespace larkspan {

double retentionSeconds(RetentionPeriod period) {
    return period == RetentionPeriod::threeMonths ? 7'776'000.0 : 31'536'000.0;
}

bool deleteDataOlderThan(Database& database, RetentionPeriod period, Date now) {
    try {
        database.run("DELETE FROM activities WHERE start_time < ?", now - retentionSeconds(period));
        return true;
    } catch (const DBError&) {
        return false;
    }
}

bool compact(Database& database) {
    try {
        database.exec("VACUUM");
        // In WAL mode the rewritten pages sit in the log until a checkpoint; truncating it is what
        // shrinks the files on disk.
        database.exec("PRAGMA wal_checkpoint(TRUNCATE)");
        return true;
    } catch (const DBError&) {
        return false;
    }
}

}  // namespace larkspan
