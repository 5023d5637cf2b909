#include "cli/GatedRoute.hpp"

#include <cerrno>

namespace brindle {

void GatedRoute::open() {
    _flags = _route->flags().value_or(0);
}

tl::expected<std::uint32_t, std::int32_t> GatedRoute::flags() {
    const std::int64_t flags = _flags;
    if (flags == closed)
        return tl::unexpected(ENETDOWN);
    return static_cast<std::uint32_t>(flags);
}

tl::expected<NetworkRoute::Watch, std::int32_t> GatedRoute::watch(const DispatchQueue&, Callback) {
    return std::make_shared<int>();
}

} // namespace brindle
