#include "SyndicatedParser/RouteWatcher.hpp"

#include "SyndicatedParser/RoutingTable.hpp"

#include <array>
#include <cerrno>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace brindle {

RouteWatcher& RouteWatcher::shared() {
    // Never destroyed: its thread runs until the process is gone.
    static RouteWatcher& watcher = *new RouteWatcher;
    return watcher;
}

RouteWatcher::RouteWatcher() : _queue("org.brindle.Brindle.routes") {}

tl::expected<std::uint32_t, std::int32_t> RouteWatcher::flags() const {
    return RoutingTable::defaultRouteFlags();
}

tl::expected<NetworkRoute::Watch, std::int32_t> RouteWatcher::watch(const DispatchQueue& queue, NetworkRoute::Callback callback) {
    auto entry = std::make_shared<Entry>(Entry{queue, std::move(callback)});
    tl::expected<void, std::int32_t> started;
    _queue.sync([&] {
        if (!_running)
            started = startThread();
        if (started)
            _entries.emplace(++_lastNumber, entry);
    });
    if (!started)
        return tl::unexpected(started.error());
    return std::static_pointer_cast<void>(entry);
}

tl::expected<void, std::int32_t> RouteWatcher::startThread() {
    const auto descriptor = RoutingTable::openChanges();
    if (!descriptor)
        return tl::unexpected(descriptor.error());
    _running = true;
    std::thread([this, changes = *descriptor] { waitForChanges(changes); }).detach();
    return {};
}

void RouteWatcher::waitForChanges(int descriptor) {
    std::array<char, 1 << 13> buffer;
    for (;;) {
        // The kernel sends no message when the default route goes with its link, and drops messages when they come too fast: whatever
        // comes, a failed read included, means that the table has to be read again.
        static_cast<void>(::recv(descriptor, buffer.data(), buffer.size(), 0));
        while (::recv(descriptor, buffer.data(), buffer.size(), MSG_DONTWAIT) > 0) {
        }
        _queue.async([this] { tellAll(); });
    }
}

void RouteWatcher::tellAll() {
    const auto word = RoutingTable::defaultRouteFlags();
    if (!word)
        return;
    std::erase_if(_entries, [](const auto& pair) { return pair.second.expired(); });
    for (const auto& [number, weak] : _entries) {
        if (const auto entry = weak.lock()) {
            entry->queue.async([weakEntry = std::weak_ptr(entry), flags = *word] {
                if (const auto watching = weakEntry.lock())
                    watching->callback(flags);
            });
        }
    }
}

} // namespace brindle
