#pragma once

#include "foundation/URLTransfer.hpp"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>

namespace brindle {

/// Decides which transfers are at work: so many in all, so many for each host, first come first served. A transfer that stays silent gives
/// its place to one that has not begun yet and goes to the end of the line, so that servers which never answer hold up nobody but
/// themselves. Thread: the network's.
class URLTransferLine {
public:
    using Time = URLTransfer::Time;

    /// How long a transfer may be silent before it can be made to give its place away.
    static constexpr std::chrono::milliseconds patience{1000};

    URLTransferLine(std::size_t limit, std::size_t limitPerHost) : _limit(limit), _limitPerHost(limitPerHost) {}

    void add(std::unique_ptr<URLTransfer> transfer) { _waiting.push_back(std::move(transfer)); }

    /// Puts the next transfer that has a place to work and lends it; null when there is none. Those that never began go first.
    URLTransfer* next();

    /// The transfer at work that should give its place away now; null when none should.
    URLTransfer* toSuspend(Time now) const;
    /// Takes a suspended transfer from work to the end of the line.
    void sendBack(const URLTransfer& transfer);

    /// Takes a transfer out, at work or in line; null when there is none.
    std::unique_ptr<URLTransfer> take(std::uint64_t identifier);

    /// Whether a transfer that never began waits for a place.
    bool isCrowded() const;

    bool isEmpty() const { return _waiting.empty() && _working.empty(); }

private:
    using Transfers = std::list<std::unique_ptr<URLTransfer>>;

    bool isFull() const { return _working.size() >= _limit; }
    bool isFull(const std::string& host) const;
    void leaveHost(const std::string& host);
    std::unique_ptr<URLTransfer> takeFromWork(std::uint64_t identifier);
    Transfers::iterator nextWaiting();

    const std::size_t _limit;
    const std::size_t _limitPerHost;
    Transfers _waiting;
    std::unordered_map<std::uint64_t, std::unique_ptr<URLTransfer>> _working;
    std::map<std::string, std::size_t> _workingPerHost; ///< no zeros
};

} // namespace brindle
