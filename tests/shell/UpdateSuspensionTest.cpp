#include "foundation/RunLoop.hpp"
#include "tests/shell/AppDelegateFixture.hpp"

namespace brindle {
namespace {

class UpdateSuspensionTest : public AppDelegateTest {
protected:
    void pass(std::chrono::milliseconds duration) {
        time->advance(duration);
        RunLoop::main().runPending();
    }
};

TEST_F(UpdateSuspensionTest, StopsUpdatingWhileTheMachineSleeps) {
    const auto feed = add(makeItem("a"));
    feed->scheduleUpdates(false);
    delegate->machineWillSleep();
    EXPECT_FALSE(feedsManager().allowUpdates);
    EXPECT_FALSE(feed->hasTimer());
    EXPECT_TRUE(isOn(preference::savedFeedsUpdateState));
}

TEST_F(UpdateSuspensionTest, UpdatesAgainFiveSecondsAfterItWoke) {
    const auto feed = add(makeItem("a"));
    delegate->machineWillSleep();
    delegate->machineDidWake();
    pass(std::chrono::milliseconds(4999));
    EXPECT_FALSE(feedsManager().allowUpdates);
    pass(std::chrono::milliseconds(1));
    EXPECT_TRUE(feedsManager().allowUpdates);
    EXPECT_TRUE(feed->hasTimer());
    EXPECT_TRUE(feed->session().isQueued());
}

TEST_F(UpdateSuspensionTest, StopsAndUpdatesAgainWithThePersonsSession) {
    delegate->machineResignedSession();
    EXPECT_FALSE(feedsManager().allowUpdates);
    delegate->machineActivatedSession();
    pass(std::chrono::seconds(5));
    EXPECT_TRUE(feedsManager().allowUpdates);
}

TEST_F(UpdateSuspensionTest, LeavesAPausedLibraryPausedAfterItWoke) {
    feedsManager().allowUpdates = false;
    delegate->machineWillSleep();
    EXPECT_FALSE(isOn(preference::savedFeedsUpdateState));
    delegate->machineDidWake();
    EXPECT_EQ(RunLoop::main().nextDeadline(), RunLoop::Time::max());
    pass(std::chrono::seconds(5));
    EXPECT_FALSE(feedsManager().allowUpdates);
}

TEST_F(UpdateSuspensionTest, StaysOffAfterTwoSuspensionsInARow) {
    delegate->machineResignedSession();
    delegate->machineWillSleep();
    delegate->machineDidWake();
    pass(std::chrono::seconds(5));
    EXPECT_FALSE(feedsManager().allowUpdates);
}

TEST_F(UpdateSuspensionTest, HasADelayForEachOfTwoWakes) {
    delegate->machineDidWake();
    pass(std::chrono::seconds(3));
    delegate->machineDidWake();
    pass(std::chrono::seconds(2));
    feedsManager().allowUpdates = false;
    pass(std::chrono::seconds(3));
    EXPECT_TRUE(feedsManager().allowUpdates);
}

} // namespace
} // namespace brindle
