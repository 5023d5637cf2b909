#pragma once

#include "SyndicatedParser/NetworkRoute.hpp"
#include "foundation/DispatchQueue.hpp"
#include "foundation/NotificationCenter.hpp"

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <tl/expected.hpp>

namespace brindle {

struct ReachabilityError {
    enum class Case {
        failedToCreateWithAddress,
        failedToCreateWithHostname,
        unableToSetCallback,
        unableToSetDispatchQueue,
        unableToGetFlags
    };

    Case kind = Case::unableToGetFlags;
    std::int32_t code = 0;
};

/// Watches whether the machine has a route to the internet at all, and tells when that changes. Thread: any; changes are announced on the
/// queue given.
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
    Reachability(std::shared_ptr<NetworkRoute> route, std::optional<DispatchQueue> notificationQueue);
    tl::expected<void, ReachabilityError> readFlags();
    void store(std::uint32_t flags);
    void announceChange();

    const std::shared_ptr<NetworkRoute> _route;
    const std::optional<DispatchQueue> _notificationQueue;
    const DispatchQueue _reachabilitySerialQueue; ///< flags are read here and changes come here
    std::atomic<std::int64_t> _flags;             ///< -1 until first read; written on the serial queue, read anywhere
    NetworkRoute::Watch _watch;                   ///< present while the notifier runs
};

} // namespace brindle
