#include "Platform/SerialQueue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <thread>
#include <vector>

namespace larkspan {
namespace {

TEST(SerialQueue, RunsInOrderSyncsInlineFromWithinRethrowsAndKeepsWorking) {
    SerialQueue queue("com.larkspan.test");
    std::vector<int> order;
    for (int i = 0; i < 100; ++i)
        queue.async([&order, i] { order.push_back(i); });
    queue.sync([&] { queue.sync([&] { order.push_back(100); }); });  // inline, no deadlock
    ASSERT_EQ(order.size(), 101u);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
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
        for (int i = 0; i < 50; ++i)
            queue.async([&] { ++ran; });
    }
    EXPECT_EQ(ran, 50);
}

}  // namespace
}  // namespace larkspan
