#pragma once

#include <cstdint>
#include <tl/expected.hpp>

namespace brindle {

/// The kernel's routing table over rtnetlink (rtnetlink(7)). Thread: any.
class RoutingTable {
public:
    /// The flag word of the default route: `reachable` where a usable default route stands in the IPv4 or IPv6 main table, else 0. The
    /// error is an errno.
    static tl::expected<std::uint32_t, std::int32_t> defaultRouteFlags();

    /// A descriptor that becomes readable whenever routes, addresses or links change; errno where the kernel refuses.
    static tl::expected<int, std::int32_t> openChanges();
};

} // namespace brindle
