#include "SyndicatedParser/Reachability.hpp"

#include <array>
#include <atomic>
#include <utility>

namespace brindle {

namespace {

constexpr std::string_view queueLabel = "org.brindle.Brindle.reachability";
constexpr std::int64_t flagsUnknown = -1;

bool has(std::uint32_t flags, std::uint32_t flag) {
    return (flags & flag) != 0;
}

} // namespace

Reachability::Reachability(std::shared_ptr<NetworkRoute> route, std::optional<DispatchQueue> notificationQueue)
    : _route(std::move(route)), _notificationQueue(std::move(notificationQueue)), _reachabilitySerialQueue(std::string(queueLabel)),
      _flags(flagsUnknown) {}

tl::expected<std::shared_ptr<Reachability>, ReachabilityError> Reachability::make(
    std::shared_ptr<NetworkRoute> route, std::optional<DispatchQueue> notificationQueue) {
    if (!route)
        return tl::unexpected(ReachabilityError{ReachabilityError::Case::failedToCreateWithAddress, 0});
    return std::shared_ptr<Reachability>(new Reachability(std::move(route), std::move(notificationQueue)));
}

Reachability::~Reachability() {
    stopNotifier();
}

Reachability::Connection Reachability::connection() {
    if (_flags.load() == flagsUnknown)
        static_cast<void>(readFlags());
    const std::int64_t flags = _flags.load();
    return connection(flags == flagsUnknown ? std::nullopt : std::optional(static_cast<std::uint32_t>(flags)));
}

Reachability::Connection Reachability::connection(std::optional<std::uint32_t> flags) {
    using Flags = NetworkReachabilityFlags;
    if (!flags || !has(*flags, Flags::reachable))
        return Connection::unavailable;
    if (has(*flags, Flags::connectionOnTraffic | Flags::connectionOnDemand) && !has(*flags, Flags::interventionRequired))
        return Connection::wifi;
    return has(*flags, Flags::connectionRequired) ? Connection::unavailable : Connection::wifi;
}

tl::expected<void, ReachabilityError> Reachability::startNotifier() {
    if (_watch)
        return {};
    // The route's callback must not keep the monitor alive.
    auto watch = _route->watch(_reachabilitySerialQueue, [weak = weak_from_this()](std::uint32_t flags) {
        if (const auto self = weak.lock())
            self->store(flags);
    });
    if (!watch)
        return tl::unexpected(ReachabilityError{ReachabilityError::Case::unableToSetCallback, watch.error()});
    _watch = std::move(*watch);
    return readFlags();
}

void Reachability::stopNotifier() {
    _watch.reset();
}

tl::expected<void, ReachabilityError> Reachability::readFlags() {
    tl::expected<std::uint32_t, std::int32_t> flags;
    _reachabilitySerialQueue.sync([&] {
        flags = _route->flags();
        if (flags)
            store(*flags);
    });
    if (flags)
        return {};
    stopNotifier();
    return tl::unexpected(ReachabilityError{ReachabilityError::Case::unableToGetFlags, flags.error()});
}

void Reachability::store(std::uint32_t flags) {
    if (_flags.exchange(flags) != static_cast<std::int64_t>(flags))
        announceChange();
}

void Reachability::announceChange() {
    const auto announce = [weak = weak_from_this()] {
        const auto self = weak.lock();
        if (!self)
            return;
        const auto& changed = self->connection() != Connection::unavailable ? self->whenReachable : self->whenUnreachable;
        if (changed)
            changed(*self);
        NotificationCenter::defaultCenter().post(changedNotification, self.get());
    };
    if (_notificationQueue)
        _notificationQueue->async(announce);
    else
        announce();
}

std::string Reachability::description(std::uint32_t flags) {
    using Flags = NetworkReachabilityFlags;
    constexpr std::array<std::pair<std::uint32_t, char>, 7> letters = {{
        {Flags::connectionRequired, 'c'},
        {Flags::transientConnection, 't'},
        {Flags::interventionRequired, 'i'},
        {Flags::connectionOnTraffic, 'C'},
        {Flags::connectionOnDemand, 'D'},
        {Flags::isLocalAddress, 'l'},
        {Flags::isDirect, 'd'},
    }};
    std::string text = "-";
    text += has(flags, Flags::reachable) ? 'R' : '-';
    text += ' ';
    for (const auto& [flag, letter] : letters)
        text += has(flags, flag) ? letter : '-';
    return text;
}

} // namespace brindle
