#pragma once

#include "SyndicatedParser/NetworkRoute.hpp"

#include <cstdint>
#include <map>
#include <memory>
#include <tl/expected.hpp>

namespace brindle {

/// Watches the default route for the whole process: one thread waits for word of the kernel, reads the table again at each, and tells
/// everyone who watches. What is known is kept on one serial queue. Thread: any.
class RouteWatcher {
public:
    /// The one watcher; its thread starts with the first watch.
    static RouteWatcher& shared();

    tl::expected<std::uint32_t, std::int32_t> flags() const;
    tl::expected<NetworkRoute::Watch, std::int32_t> watch(const DispatchQueue& queue, NetworkRoute::Callback callback);

private:
    struct Entry {
        DispatchQueue queue;
        NetworkRoute::Callback callback;
    };

    RouteWatcher();
    tl::expected<void, std::int32_t> startThread();
    void waitForChanges(int descriptor);
    void tellAll();

    const DispatchQueue _queue; ///< guards what follows
    bool _running = false;
    std::uint64_t _lastNumber = 0;
    std::map<std::uint64_t, std::weak_ptr<Entry>> _entries;
};

} // namespace brindle
