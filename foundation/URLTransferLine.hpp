#pragma once

#include "foundation/URLTransfer.hpp"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

namespace brindle {

/// Decides which transfers are at work: so many in all, so many for each host, first come first served. A transfer that stays silent gives
/// its place to one that has not begun yet and goes to the end of the line, so that servers which never answer hold up nobody but
/// themselves. No step takes longer for a longer line. Thread: the network's.
class URLTransferLine {
public:
    using Time = URLTransfer::Time;

    /// How long a transfer may be silent before it can be made to give its place away.
    static constexpr std::chrono::milliseconds patience{1000};

    URLTransferLine(std::size_t limit, std::size_t limitPerHost) : _limit(limit), _limitPerHost(limitPerHost) {}

    void add(std::unique_ptr<URLTransfer> transfer);

    /// Puts the next transfer that has a place to work and lends it; null when there is none. Those that never began go first.
    URLTransfer* next();

    /// The transfer at work that should give its place away now; null when none should.
    URLTransfer* toSuspend(Time now) const;
    /// Takes a suspended transfer from work to the end of the line.
    void sendBack(const URLTransfer& transfer);

    /// Takes a transfer out, at work or in line; null when there is none.
    std::unique_ptr<URLTransfer> take(std::uint64_t identifier);

    /// Whether a transfer that never began waits for a place.
    bool isCrowded() const { return _fresh > 0; }

private:
    /// Whether the transfer has begun before, and its number in the line.
    using Turn = std::pair<bool, std::uint64_t>;

    /// The transfers of one host. Only the first one that waits, and only while the host has room, stands in `_turns`.
    struct Host {
        std::map<Turn, std::unique_ptr<URLTransfer>> waiting;
        std::size_t working = 0;
        std::optional<Turn> turn;

        bool hasFresh() const { return !waiting.empty() && !waiting.begin()->first.first; }
    };

    bool isFull() const { return _working.size() >= _limit; }
    void setTurn(const std::string& name, Host& host);
    std::unique_ptr<URLTransfer> takeFromWork(std::uint64_t identifier);
    std::unique_ptr<URLTransfer> takeFromLine(const std::string& name, Turn turn);

    const std::size_t _limit;
    const std::size_t _limitPerHost;
    std::uint64_t _lastNumber = 0;
    std::size_t _fresh = 0; ///< how many wait that never began
    std::unordered_map<std::string, Host> _hosts;
    std::map<Turn, std::string> _turns;                                      ///< hosts by their turns
    std::unordered_map<std::uint64_t, std::pair<std::string, Turn>> _places; ///< of those that wait
    std::unordered_map<std::uint64_t, std::unique_ptr<URLTransfer>> _working;
};

} // namespace brindle
