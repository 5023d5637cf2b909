#pragma once

#include "SyndicatedParser/NetworkRoute.hpp"

#include <atomic>
#include <cstdint>
#include <memory>

namespace brindle {

/// The machine's route as one command sees it: unknown until it is opened, from then on as it was at that moment. A session that hears that
/// the network is there fetches, whether it was started or not; of this route it hears nothing unless it asks, so that a command fetches
/// the feeds that it starts and no other. Thread: any.
class GatedRoute : public NetworkRoute {
public:
    explicit GatedRoute(std::shared_ptr<NetworkRoute> route) : _route(std::move(route)) {}

    /// Reads the route's flags and gives them out from now on; no flags where they can't be read.
    void open();

    tl::expected<std::uint32_t, std::int32_t> flags() override;
    tl::expected<Watch, std::int32_t> watch(const DispatchQueue& queue, Callback callback) override;

private:
    static constexpr std::int64_t closed = -1;

    const std::shared_ptr<NetworkRoute> _route;
    std::atomic<std::int64_t> _flags = closed;
};

} // namespace brindle
