#include "SyndicatedParser/RouteWatcher.hpp"

#include "SyndicatedParser/RoutingTable.hpp"
#include "tests/support/OwnNetwork.hpp"

#include <condition_variable>
#include <functional>
#include <gtest/gtest.h>
#include <mutex>

namespace brindle {
namespace {

using testsupport::addDefaultRoute;
using testsupport::cannotTell;
using testsupport::ip;

/// What a watch was told, with a way to wait for it.
class Told {
public:
    void operator()(std::uint32_t word) {
        const std::lock_guard lock(_mutex);
        _last = word;
        _changed.notify_all();
    }
    bool comesTo(std::uint32_t word) {
        std::unique_lock lock(_mutex);
        return _changed.wait_for(lock, std::chrono::seconds(30), [&] { return _last == word; });
    }

private:
    std::mutex _mutex;
    std::condition_variable _changed;
    std::uint32_t _last = 1234;
};

TEST(RoutingTableTest, FindsNoRouteInAnEmptyNetwork) {
    EXPECT_HELD_APART([] { return RoutingTable::defaultRouteFlags() == 0U ? 0 : 1; });
}

TEST(RoutingTableTest, FindsADefaultRouteAndNoOther) {
    const auto steps = [] {
        if (!ip("address add 10.9.0.2/24 dev in0") || !ip("link set out0 up") || !ip("link set in0 up"))
            return cannotTell;
        if (RoutingTable::defaultRouteFlags() != 0U)
            return 1;
        if (!ip("route add unreachable default metric 5000"))
            return cannotTell;
        if (RoutingTable::defaultRouteFlags() != 0U)
            return 2;
        if (!ip("route add default via 10.9.0.1"))
            return cannotTell;
        return RoutingTable::defaultRouteFlags() == NetworkReachabilityFlags::reachable ? 0 : 3;
    };
    EXPECT_HELD_APART(steps);
}

TEST(RouteWatcherTest, TellsEveryWatchWhenTheRouteComesAndGoes) {
    const auto steps = [] {
        Told first;
        Told second;
        const DispatchQueue queue("watch");
        const auto one = RouteWatcher::shared().watch(queue, std::ref(first));
        const auto two = RouteWatcher::shared().watch(queue, std::ref(second));
        if (!one || !two)
            return 1;
        if (!addDefaultRoute())
            return cannotTell;
        if (!first.comesTo(NetworkReachabilityFlags::reachable) || !second.comesTo(NetworkReachabilityFlags::reachable))
            return 2;
        // The kernel sends no message for the route that goes with its link.
        if (!ip("link set in0 down"))
            return cannotTell;
        return first.comesTo(0) && second.comesTo(0) && RouteWatcher::shared().flags() == 0U ? 0 : 3;
    };
    EXPECT_HELD_APART(steps);
}

} // namespace
} // namespace brindle
