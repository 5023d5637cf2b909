#include "foundation/RunLoop.hpp"

#include "foundation/Timer.hpp"
#include "tests/fakes/TimeSourceFake.hpp"
#include "tests/support/MainLoop.hpp"

#include <gtest/gtest.h>
#include <limits>
#include <thread>
#include <vector>

namespace brindle {
namespace {

using std::chrono::seconds;

class RunLoopTest : public testing::Test {
protected:
    void SetUp() override { RunLoop::main().setTimeSource(_time); }
    void TearDown() override { RunLoop::main().setTimeSource(nullptr); }

    int firesAfter(seconds by) {
        const int before = _shots;
        _time->advance(by);
        RunLoop::main().runPending();
        return _shots - before;
    }

    std::shared_ptr<Timer> timer(double interval, bool repeats) {
        return Timer::scheduledTimer(Timer::Interval(interval), repeats, [this](Timer&) { ++_shots; });
    }

    const std::shared_ptr<TimeSourceFake> _time = std::make_shared<TimeSourceFake>();
    int _shots = 0;
};

TEST_F(RunLoopTest, RunsBlocksInTheOrderOfPosting) {
    std::vector<int> order;
    for (int i = 0; i < 3; ++i)
        RunLoop::main().perform([&order, i] { order.push_back(i); });
    EXPECT_TRUE(RunLoop::main().runPending());
    EXPECT_EQ(order, (std::vector{0, 1, 2}));
    EXPECT_FALSE(RunLoop::main().runPending());
}

TEST_F(RunLoopTest, LeavesBlocksThatBlocksPostToTheNextRound) {
    int rounds = 0;
    RunLoop::main().perform([&] { RunLoop::main().perform([&] { rounds = 2; }); });
    RunLoop::main().runPending();
    EXPECT_EQ(rounds, 0);
    RunLoop::main().runPending();
    EXPECT_EQ(rounds, 2);
}

TEST_F(RunLoopTest, TakesBlocksFromOtherThreads) {
    bool ran = false;
    std::thread other([&] { RunLoop::main().perform([&] { ran = RunLoop::main().isCurrent(); }); });
    EXPECT_TRUE(runMainLoop([&] { return ran; }));
    other.join();
}

TEST_F(RunLoopTest, RunsUntilItIsStopped) {
    int ran = 0;
    std::thread other([&] {
        RunLoop::main().perform([&] { ++ran; });
        RunLoop::main().stop();
    });
    RunLoop::main().run();
    other.join();
    EXPECT_EQ(ran, 1);
}

TEST_F(RunLoopTest, CallsTheWakeHandlerWhenTheFirstBlockIsPosted) {
    int wakes = 0;
    RunLoop::main().setWakeHandler([&] { ++wakes; });
    RunLoop::main().perform([] {});
    RunLoop::main().perform([] {});
    EXPECT_EQ(wakes, 1);
    RunLoop::main().runPending();
    RunLoop::main().perform([] {});
    EXPECT_EQ(wakes, 2);
    RunLoop::main().setWakeHandler(nullptr);
    RunLoop::main().runPending();
}

TEST_F(RunLoopTest, FiresARepeatingTimerFirstAfterAWholeInterval) {
    const auto kept = timer(60, true);
    EXPECT_EQ(firesAfter(seconds(0)), 0);
    EXPECT_EQ(firesAfter(seconds(59)), 0);
    EXPECT_EQ(firesAfter(seconds(1)), 1);
    EXPECT_EQ(firesAfter(seconds(60)), 1);
}

TEST_F(RunLoopTest, PassesOverMissedShotsAndKeepsThePhase) {
    const auto kept = timer(60, true);
    EXPECT_EQ(firesAfter(seconds(200)), 1);
    EXPECT_EQ(firesAfter(seconds(39)), 0);
    EXPECT_EQ(firesAfter(seconds(1)), 1);
}

TEST_F(RunLoopTest, FiresAOneShotTimerOnce) {
    const auto kept = timer(5, false);
    EXPECT_EQ(firesAfter(seconds(5)), 1);
    EXPECT_FALSE(kept->isValid());
    EXPECT_EQ(firesAfter(seconds(50)), 0);
}

TEST_F(RunLoopTest, NeverFiresAnInvalidatedTimerOrOneThatIsGone) {
    const auto kept = timer(5, true);
    kept->invalidate();
    timer(5, true).reset();
    EXPECT_EQ(firesAfter(seconds(50)), 0);
    EXPECT_EQ(RunLoop::main().nextDeadline(), RunLoop::Time::max());
}

TEST_F(RunLoopTest, BearsATimerThatInvalidatesItselfAndOthersWhileItFires) {
    std::shared_ptr<Timer> second = timer(6, true);
    const auto first = Timer::scheduledTimer(Timer::Interval(5), true, [&](Timer& self) {
        self.invalidate();
        second.reset();
        ++_shots;
    });
    EXPECT_EQ(firesAfter(seconds(100)), 1);
}

TEST_F(RunLoopTest, KeepsTimersOfAnyIntervalInOrder) {
    const auto endless = timer(std::numeric_limits<double>::max(), true);
    const auto none = timer(-1, false);
    EXPECT_EQ(firesAfter(seconds(1)), 1);
    EXPECT_TRUE(endless->isValid());
    EXPECT_FALSE(none->isValid());
}

} // namespace
} // namespace brindle
