#pragma once

#include "SyndicatedParser/NetworkRoute.hpp"

#include <list>
#include <utility>

namespace brindle {

/// A route whose flag word a test sets. Used from the main thread and from queues that the test waits for.
class NetworkRouteFake : public NetworkRoute {
public:
    explicit NetworkRouteFake(std::uint32_t word = NetworkReachabilityFlags::reachable) : _word(word) {}

    tl::expected<std::uint32_t, std::int32_t> flags() override {
        if (failure != 0)
            return tl::unexpected(failure);
        return _word;
    }

    tl::expected<Watch, std::int32_t> watch(const DispatchQueue& queue, Callback callback) override {
        if (watchFailure != 0)
            return tl::unexpected(watchFailure);
        auto watch = std::make_shared<std::pair<DispatchQueue, Callback>>(queue, std::move(callback));
        _watches.push_back(watch);
        return std::static_pointer_cast<void>(watch);
    }

    /// Sets the word and tells every watch of it; returns when all have heard.
    void change(std::uint32_t word) {
        _word = word;
        tell();
    }

    /// Tells every watch of the word as it is.
    void tell() {
        for (const auto& weak : _watches) {
            if (const auto watch = weak.lock())
                watch->first.sync([&] { watch->second(_word); });
        }
    }

    std::size_t watchCount() const {
        std::size_t count = 0;
        for (const auto& weak : _watches)
            count += weak.expired() ? 0 : 1;
        return count;
    }

    std::int32_t failure = 0;      ///< what reading answers with, when not 0
    std::int32_t watchFailure = 0; ///< what watching answers with, when not 0

private:
    std::uint32_t _word;
    std::list<std::weak_ptr<std::pair<DispatchQueue, Callback>>> _watches;
};

} // namespace brindle
