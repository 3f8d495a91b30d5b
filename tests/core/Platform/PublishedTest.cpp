#include "Platform/Published.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace larkspan {
namespace {

TEST(Published, SubscriberGetsTheCurrentValueAndEverySetUntilCancelled) {
    Published<int> value(7);
    std::vector<int> seen;
    {
        auto subscription = value.subscribe([&](const int& v) { seen.push_back(v); });
        value.set(7);
        value.set(8);
    }
    value.set(9);
    EXPECT_EQ(seen, (std::vector<int>{7, 7, 8}));
}

TEST(Published, SubscriberMayCancelAnotherDuringDelivery) {
    Published<int> value;
    Subscription second;
    int secondCalls = 0;
    auto first = value.subscribe([&](const int& v) {
        if (v == 1)
            second.cancel();
    });
    second = value.subscribe([&](const int&) { ++secondCalls; });
    value.set(1);
    EXPECT_EQ(secondCalls, 1);  // only its initial delivery
}

TEST(Published, SubscriptionMayOutliveThePublisher) {
    Subscription subscription;
    {
        Published<int> value;
        subscription = value.subscribe([](const int&) {});
    }
    subscription.cancel();  // must not touch freed memory
    SUCCEED();
}

}  // namespace
}  // namespace larkspan
