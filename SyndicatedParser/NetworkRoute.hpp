#pragma once

#include "foundation/DispatchQueue.hpp"

#include <cstdint>
#include <functional>
#include <memory>
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
    /// Keeps a callback in place; it is not called any more once this is gone, but for a call that is under way.
    using Watch = std::shared_ptr<void>;

    virtual ~NetworkRoute() = default;
    /// The present flag word, or the platform's error code.
    virtual tl::expected<std::uint32_t, std::int32_t> flags() = 0;
    /// Calls `callback` on `queue` when the word may have changed. An error code where watching is impossible.
    virtual tl::expected<Watch, std::int32_t> watch(const DispatchQueue& queue, Callback callback) = 0;
};

/// The default route by the kernel's routing table (rtnetlink), with one watcher for the whole process.
std::shared_ptr<NetworkRoute> defaultNetworkRoute();

/// A route that is never there: with it nothing touches the network.
std::shared_ptr<NetworkRoute> absentNetworkRoute();

} // namespace brindle
