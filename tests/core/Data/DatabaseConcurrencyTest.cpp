#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <set>
#include <thread>

#include "Data/Database.h"
#include "SqliteFile.h"
#include "TempDir.h"

namespace larkspan {
namespace {

using namespace test;

// Writers insert pending sessions and close them while a reader reads ranges and counts pending rows,
// all on one connection.
TEST(DatabaseConcurrency, ThreadsWritingAndReadingAtOnceLoseNothing) {
    TempDir dir;
    Database db(dir / "tracker.db");
    constexpr int kWriters = 3;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(2);
    std::atomic<bool> failed{false};
    std::vector<std::vector<std::int64_t>> written(kWriters);

    std::vector<std::thread> threads;
    for (int w = 0; w < kWriters; ++w) {
        threads.emplace_back([&, w] {
            try {
                for (int i = 0; std::chrono::steady_clock::now() < deadline; ++i) {
                    ActivityRecord record;
                    record.appName = "writer " + std::to_string(w);
                    record.categoryID = 1 + w;
                    record.needsApproval = true;
                    record.startTime = w * 1e6 + i;
                    const auto id = db.insertActivity(record);
                    db.updateActivityEnd(id, record.startTime + 45, 45);
                    written[w].push_back(id);
                }
            } catch (const std::exception&) {
                failed = true;
            }
        });
    }
    threads.emplace_back([&] {
        std::int64_t lastCount = 0;
        while (std::chrono::steady_clock::now() < deadline) {
            for (const auto& row : db.fetchActivities(0, 1e7))
                failed = failed || !row.appName.starts_with("writer ");
            const auto count = db.pendingApprovalCount();
            failed = failed || count < lastCount;  // rows only ever become pending here
            lastCount = count;
        }
    });
    for (auto& thread : threads)
        thread.join();

    EXPECT_FALSE(failed);
    std::set<std::int64_t> ids;
    for (const auto& list : written)
        ids.insert(list.begin(), list.end());
    const auto stored = db.fetchActivities(0, 1e7);
    EXPECT_GT(stored.size(), 100u);
    ASSERT_EQ(stored.size(), ids.size());
    for (const auto& row : stored) {
        EXPECT_TRUE(ids.count(row.id)) << row.id;
        EXPECT_EQ(row.durationSeconds, 45);
    }
    EXPECT_EQ(db.pendingApprovalCount(), static_cast<std::int64_t>(ids.size()));
    EXPECT_EQ(SqliteFile(dir / "tracker.db").text("PRAGMA integrity_check"), "ok");
}

}  // namespace
}  // namespace larkspan
