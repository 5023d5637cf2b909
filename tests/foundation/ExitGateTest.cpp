#include "foundation/ExitGate.hpp"

#include <atomic>
#include <future>
#include <gtest/gtest.h>
#include <thread>

namespace brindle {

TEST(ExitGateTest, LetsAnyNumberInAtATime) {
    ExitGate gate;
    const auto first = gate.enter();
    const auto second = gate.enter();
    EXPECT_TRUE(first);
    EXPECT_TRUE(second);
}

TEST(ExitGateTest, ClosesOnlyWhenAllAreOut) {
    ExitGate gate;
    std::atomic<bool> isOut = false;
    std::promise<void> isIn;
    std::promise<void> mayLeave;
    std::thread thread([&] {
        const auto entered = gate.enter();
        isIn.set_value();
        mayLeave.get_future().wait();
        isOut = true;
    });
    isIn.get_future().wait();
    std::thread leaver([&] { mayLeave.set_value(); });
    gate.close();
    EXPECT_TRUE(isOut);
    leaver.join();
    thread.join();
}

TEST(ExitGateTest, LetsNobodyInOnceItIsClosed) {
    ExitGate gate;
    EXPECT_TRUE(gate.tryEnter());
    gate.close();
    EXPECT_FALSE(gate.tryEnter());
}

} // namespace brindle
