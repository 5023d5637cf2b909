#include "SyndicatedParser/Reachability.hpp"

#include "foundation/RunLoop.hpp"
#include "tests/fakes/NetworkRouteFake.hpp"
#include "tests/support/MainLoop.hpp"

#include <gtest/gtest.h>

namespace brindle {
namespace {

using Flags = NetworkReachabilityFlags;
using Connection = Reachability::Connection;

class ReachabilityTest : public testing::Test {
protected:
    std::shared_ptr<Reachability> monitor(std::optional<DispatchQueue> queue = std::nullopt) {
        auto made = Reachability::make(_route, std::move(queue)).value();
        _observer = NotificationCenter::defaultCenter().addObserver(
            Reachability::changedNotification, made.get(), [this](const Notification&) { ++_notices; });
        return made;
    }

    const std::shared_ptr<NetworkRouteFake> _route = std::make_shared<NetworkRouteFake>();
    NotificationCenter::Token _observer;
    int _notices = 0;
};

TEST_F(ReachabilityTest, KnowsTheConnectionBeforeAnyNotifierRuns) {
    EXPECT_EQ(monitor()->connection(), Connection::wifi);
    _route->change(0);
    EXPECT_EQ(monitor()->connection(), Connection::unavailable);
}

TEST_F(ReachabilityTest, TakesAWordThatCannotBeReadForNoConnection) {
    _route->failure = 1001;
    EXPECT_EQ(monitor()->connection(), Connection::unavailable);
    _route->failure = 0;
    EXPECT_EQ(monitor()->connection(), Connection::wifi);
}

struct FlagsCase {
    std::uint32_t flags;
    Connection connection;
};

class ReachabilityFlagsTest : public testing::TestWithParam<FlagsCase> {};

TEST_P(ReachabilityFlagsTest, TurnsTheWordIntoAState) {
    EXPECT_EQ(Reachability::connection(GetParam().flags), GetParam().connection);
}

INSTANTIATE_TEST_SUITE_P(Words, ReachabilityFlagsTest,
    testing::Values(FlagsCase{0, Connection::unavailable}, FlagsCase{Flags::reachable, Connection::wifi},
        FlagsCase{Flags::connectionOnDemand, Connection::unavailable},
        FlagsCase{Flags::reachable | Flags::connectionRequired, Connection::unavailable},
        FlagsCase{Flags::reachable | Flags::connectionRequired | Flags::connectionOnDemand, Connection::wifi},
        FlagsCase{Flags::reachable | Flags::connectionRequired | Flags::connectionOnTraffic, Connection::wifi},
        FlagsCase{Flags::reachable | Flags::connectionRequired | Flags::connectionOnDemand | Flags::interventionRequired,
            Connection::unavailable},
        FlagsCase{Flags::reachable | Flags::connectionOnTraffic | Flags::interventionRequired, Connection::wifi},
        FlagsCase{Flags::reachable | Flags::transientConnection | Flags::isDirect, Connection::wifi}));

TEST_F(ReachabilityTest, HasNoConnectionWhileNothingIsKnown) {
    EXPECT_EQ(Reachability::connection(std::nullopt), Connection::unavailable);
}

TEST_F(ReachabilityTest, DescribesTheWordByLetters) {
    EXPECT_EQ(Reachability::description(0), "-- -------");
    EXPECT_EQ(Reachability::description(Flags::reachable | Flags::isDirect), "-R ------d");
    EXPECT_EQ(Reachability::description(0xFFFFFFFF), "-R ctiCDld");
}

TEST_F(ReachabilityTest, AnnouncesTheFirstWordAndEachChangeButNoWordTwice) {
    const auto made = monitor();
    ASSERT_TRUE(made->startNotifier());
    EXPECT_EQ(_notices, 1);
    _route->tell();
    _route->tell();
    EXPECT_EQ(_notices, 1);
    _route->change(0);
    EXPECT_EQ(_notices, 2);
    _route->change(Flags::reachable);
    EXPECT_EQ(_notices, 3);
}

TEST_F(ReachabilityTest, CallsTheClosureOfTheNewState) {
    const auto made = monitor();
    int reachable = 0;
    int unreachable = 0;
    made->whenReachable = [&](Reachability& monitor) { reachable += &monitor == made.get() ? 1 : 0; };
    made->whenUnreachable = [&](Reachability& monitor) { unreachable += &monitor == made.get() ? 1 : 0; };
    ASSERT_TRUE(made->startNotifier());
    _route->change(0);
    EXPECT_EQ(reachable, 1);
    EXPECT_EQ(unreachable, 1);
}

TEST_F(ReachabilityTest, StartsItsNotifierOnceAndStopsIt) {
    const auto made = monitor();
    ASSERT_TRUE(made->startNotifier());
    ASSERT_TRUE(made->startNotifier());
    EXPECT_EQ(_route->watchCount(), 1U);
    made->stopNotifier();
    EXPECT_EQ(_route->watchCount(), 0U);
    _route->change(0);
    EXPECT_EQ(_notices, 1);
}

TEST_F(ReachabilityTest, RaisesWhatKeepsItFromWatching) {
    _route->watchFailure = 1003;
    const auto watched = monitor()->startNotifier();
    ASSERT_FALSE(watched);
    EXPECT_EQ(watched.error().kind, ReachabilityError::Case::unableToSetCallback);
    EXPECT_EQ(watched.error().code, 1003);
}

TEST_F(ReachabilityTest, RaisesAWordThatCannotBeReadAndStopsWatching) {
    _route->failure = 1001;
    const auto made = monitor();
    const auto started = made->startNotifier();
    ASSERT_FALSE(started);
    EXPECT_EQ(started.error().kind, ReachabilityError::Case::unableToGetFlags);
    EXPECT_EQ(started.error().code, 1001);
    EXPECT_EQ(_route->watchCount(), 0U);
}

TEST_F(ReachabilityTest, CannotBeMadeWithoutARoute) {
    const auto made = Reachability::make(nullptr, std::nullopt);
    ASSERT_FALSE(made);
    EXPECT_EQ(made.error().kind, ReachabilityError::Case::failedToCreateWithAddress);
}

TEST_F(ReachabilityTest, AnnouncesOnTheQueueThatItWasGiven) {
    const auto made = monitor(DispatchQueue::main());
    ASSERT_TRUE(made->startNotifier());
    EXPECT_EQ(_notices, 0);
    EXPECT_TRUE(runMainLoop([&] { return _notices == 1; }));
}

TEST_F(ReachabilityTest, SaysNothingOnceItIsGone) {
    auto made = monitor(DispatchQueue::main());
    ASSERT_TRUE(made->startNotifier());
    made.reset();
    RunLoop::main().runPending();
    _route->change(0);
    EXPECT_EQ(_notices, 0);
    EXPECT_EQ(_route->watchCount(), 0U);
}

} // namespace
} // namespace brindle
