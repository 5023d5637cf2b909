#pragma once

#include "foundation/DispatchQueue.hpp"
#include "foundation/NotificationCenter.hpp"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <tl/expected.hpp>

namespace brindle {

/// What is known of the default network route.
struct NetworkReachabilityFlags {
    static constexpr std::uint32_t transientConnection = 1;
    static constexpr std::uint32_t reachable = 2;
    static constexpr std::uint32_t connectionRequired = 4;
    static constexpr std::uint32_t connectionOnTraffic = 8;
    static constexpr std::uint32_t interventionRequired = 16;
    static constexpr std::uint32_t connectionOnDemand = 32;
    static constexpr std::uint32_t isLocalAddress = 1U << 16;
    static constexpr std::uint32_t isDirect = 1U << 17;
};

/// Where a monitor's flag word comes from: the platform's view of the default route. Thread: any.
class NetworkRoute {
public:
    using Callback = std::function<void(std::uint32_t flags)>;

    virtual ~NetworkRoute() = default;
    /// The present flag word, or the platform's error code.
    virtual tl::expected<std::uint32_t, std::int32_t> flags() = 0;
    /// Calls `callback` on `queue` when the word may have changed; an empty callback ends that. An error code where watching is impossible.
    virtual tl::expected<void, std::int32_t> setCallback(const DispatchQueue& queue, Callback callback) = 0;
};

/// The default route by the kernel's routing table (rtnetlink). All handles share one watcher of the process.
std::shared_ptr<NetworkRoute> makeDefaultRoute();

struct ReachabilityError {
    enum class Case { failedToCreateWithAddress, failedToCreateWithHostname, unableToSetCallback, unableToSetDispatchQueue, unableToGetFlags };

    Case kind = Case::unableToGetFlags;
    std::int32_t code = 0;
};

/// Watches whether the machine has a route to the internet at all, and tells when that changes. Thread: any; changes are announced on the queue given.
class Reachability : public std::enable_shared_from_this<Reachability> {
public:
    enum class Connection { none, unavailable, wifi, cellular };

    /// The name of the notice that a change posts; its object is the monitor.
    static constexpr std::string_view changedNotification = "reachabilityChanged";

    /// A null `notificationQueue` announces changes on the thread that learns of them.
    static tl::expected<std::shared_ptr<Reachability>, ReachabilityError> make(
        std::shared_ptr<NetworkRoute> route, std::optional<DispatchQueue> notificationQueue);
    ~Reachability();

    /// The state of the route, read on demand when nothing is known yet. `none` and `cellular` are never the answer here.
    Connection connection();

    tl::expected<void, ReachabilityError> startNotifier();
    void stopNotifier();

    /// "-R ctiCDld": nine characters and a blank, a "-" for each clear flag.
    static std::string description(std::uint32_t flags);
    static Connection connection(std::optional<std::uint32_t> flags);

    std::function<void(Reachability&)> whenReachable;
    std::function<void(Reachability&)> whenUnreachable;

private:
    struct State;
    Reachability(std::shared_ptr<NetworkRoute> route, std::optional<DispatchQueue> notificationQueue);

    std::shared_ptr<State> _state;
};

} // namespace brindle
