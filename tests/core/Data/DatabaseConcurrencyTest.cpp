#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
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
    std::atomic<int> written{0};

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
                    ++written;
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
    const auto stored = db.fetchActivities(0, 1e7);
    EXPECT_GT(written.load(), 100);
    ASSERT_EQ(stored.size(), static_cast<std::size_t>(written.load()));
    for (const auto& row : stored)
        EXPECT_EQ(row.durationSeconds, 45) << row.id;
    EXPECT_EQ(db.pendingApprovalCount(), written.load());
    EXPECT_EQ(SqliteFile(dir / "tracker.db").text("PRAGMA integrity_check"), "ok");
}

}  // namespace
}  // namespace larkspan
