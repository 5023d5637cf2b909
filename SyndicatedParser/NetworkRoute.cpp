#include "SyndicatedParser/NetworkRoute.hpp"

#include "SyndicatedParser/RouteWatcher.hpp"

#include <utility>

namespace brindle {

namespace {

class DefaultRoute : public NetworkRoute {
public:
    tl::expected<std::uint32_t, std::int32_t> flags() override { return RouteWatcher::shared().flags(); }

    tl::expected<Watch, std::int32_t> watch(const DispatchQueue& queue, Callback callback) override {
        return RouteWatcher::shared().watch(queue, std::move(callback));
    }
};

class AbsentRoute : public NetworkRoute {
public:
    tl::expected<std::uint32_t, std::int32_t> flags() override { return 0; }
    tl::expected<Watch, std::int32_t> watch(const DispatchQueue&, Callback) override { return std::make_shared<int>(); }
};

} // namespace

std::shared_ptr<NetworkRoute> defaultNetworkRoute() {
    return std::make_shared<DefaultRoute>();
}

std::shared_ptr<NetworkRoute> absentNetworkRoute() {
    return std::make_shared<AbsentRoute>();
}

} // namespace brindle
