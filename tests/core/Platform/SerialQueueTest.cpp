#include "Platform/SerialQueue.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>
#include <vector>

namespace larkspan {
namespace {

TEST(SerialQueue, RunsWorkInSubmissionOrderAcrossAsyncAndSync) {
    SerialQueue queue("com.larkspan.test");
    std::vector<int> order;
    for (int i = 0; i < 100; ++i) {
        queue.async([&order, i] { order.push_back(i); });
    }
    queue.sync([&] { order.push_back(100); });
    ASSERT_EQ(order.size(), 101u);
    for (int i = 0; i <= 100; ++i) EXPECT_EQ(order[i], i);
}

TEST(SerialQueue, SyncFromWithinTheQueueRunsInlineInsteadOfDeadlocking) {
    SerialQueue queue("com.larkspan.test");
    bool inner = false;
    queue.sync([&] { queue.sync([&] { inner = true; }); });
    EXPECT_TRUE(inner);
}

TEST(SerialQueue, SyncRethrowsAndTheQueueKeepsWorking) {
    SerialQueue queue("com.larkspan.test");
    EXPECT_THROW(queue.sync([] { throw std::runtime_error("boom"); }), std::runtime_error);
    queue.async([] { throw std::runtime_error("nobody hears this"); });
    int ran = 0;
    queue.sync([&] { ++ran; });
    EXPECT_EQ(ran, 1);
}

TEST(SerialQueue, DestructionFinishesQueuedWork) {
    int ran = 0;
    {
        SerialQueue queue("com.larkspan.test");
        for (int i = 0; i < 50; ++i) queue.async([&] { ++ran; });
    }
    EXPECT_EQ(ran, 50);
}

}  // namespace
}  // namespace larkspan
