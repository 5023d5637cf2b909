#include "foundation/DispatchQueue.hpp"

#include "foundation/RunLoop.hpp"
#include "tests/support/MainLoop.hpp"

#include <algorithm>
#include <atomic>
#include <future>
#include <gtest/gtest.h>
#include <vector>

namespace brindle {
namespace {

TEST(DispatchQueueTest, RunsItsBlocksOneAtATimeInOrder) {
    std::vector<int> order; // written by one block at a time, or the sanitizer says so
    const DispatchQueue queue("serial");
    for (int i = 0; i < 1000; ++i)
        queue.async([&order, i] { order.push_back(i); });
    queue.sync([] {});
    ASSERT_EQ(order.size(), 1000U);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST(DispatchQueueTest, RunsQueuesBesideEachOther) {
    std::promise<void> first;
    std::promise<void> second;
    const DispatchQueue a("a");
    const DispatchQueue b("b");
    a.async([&] {
        first.set_value();
        second.get_future().wait();
    });
    b.async([&] {
        first.get_future().wait();
        second.set_value();
    });
    a.sync([] {});
    b.sync([] {});
}

TEST(DispatchQueueTest, RunsWhatWasPostedWhenTheHandleIsGone) {
    std::promise<void> ran;
    DispatchQueue("short").async([&] { ran.set_value(); });
    ran.get_future().wait();
}

TEST(DispatchQueueTest, RunsMainBlocksOnTheMainThread) {
    bool isMain = false;
    bool ran = false;
    DispatchQueue("elsewhere").async([&] {
        DispatchQueue::main().async([&] {
            isMain = RunLoop::main().isCurrent();
            ran = true;
        });
    });
    EXPECT_TRUE(runMainLoop([&] { return ran; }));
    EXPECT_TRUE(isMain);
}

TEST(DispatchQueueTest, WaitsForABlockBehindThoseThatWerePosted) {
    const DispatchQueue queue("test");
    std::vector<int> order;
    for (int i = 0; i < 100; ++i)
        queue.async([&order, i] { order.push_back(i); });
    queue.sync([&order] { order.push_back(100); });
    ASSERT_EQ(order.size(), 101U);
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST(DispatchQueueTest, LetsBlocksThatArePostedMeanwhileWaitForTheOneThatIsWaitedFor) {
    const DispatchQueue queue("test");
    std::vector<int> order;
    queue.sync([&] {
        queue.async([&order] { order.push_back(2); });
        order.push_back(1);
    });
    queue.sync([&order] { order.push_back(3); });
    EXPECT_EQ(order, (std::vector{1, 2, 3}));
}

TEST(DispatchQueueTest, KeepsItsLabel) {
    EXPECT_EQ(DispatchQueue("https://example.test/feed").label(), "https://example.test/feed");
}

TEST(DispatchQueueTest, ServesManyQueuesAtOnce) {
    std::atomic<int> ran = 0;
    std::vector<DispatchQueue> queues;
    for (int i = 0; i < 2000; ++i) {
        queues.emplace_back("q" + std::to_string(i));
        queues.back().async([&] { ++ran; });
    }
    for (const DispatchQueue& queue : queues)
        queue.sync([] {});
    EXPECT_EQ(ran, 2000);
}

} // namespace
} // namespace brindle
