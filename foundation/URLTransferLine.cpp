#include "foundation/URLTransferLine.hpp"

namespace brindle {

void URLTransferLine::add(std::unique_ptr<URLTransfer> transfer) {
    const std::string name = transfer->request().host;
    const Turn turn(transfer->hasBegun(), ++_lastNumber);
    _fresh += transfer->hasBegun() ? 0 : 1;
    _places[transfer->request().identifier] = {name, turn};
    Host& host = _hosts[name];
    host.waiting.emplace(turn, std::move(transfer));
    setTurn(name, host);
}

URLTransfer* URLTransferLine::next() {
    if (isFull() || _turns.empty())
        return nullptr;
    const auto [turn, name] = *_turns.begin();
    ++_hosts[name].working;
    std::unique_ptr<URLTransfer> transfer = takeFromLine(name, turn);
    URLTransfer* const lent = transfer.get();
    _working.emplace(lent->request().identifier, std::move(transfer));
    return lent;
}

URLTransfer* URLTransferLine::toSuspend(Time now) const {
    if (!isCrowded())
        return nullptr;
    // Where there is room in all, only a host's own transfers stand in the way of those that wait for it.
    const bool allStandInTheWay = isFull() && !_turns.empty() && !_turns.begin()->first.first;
    URLTransfer* mostSilent = nullptr;
    for (const auto& [identifier, transfer] : _working) {
        const bool standsInTheWay = allStandInTheWay || _hosts.at(transfer->request().host).hasFresh();
        const auto silence = transfer->silence(now);
        if (standsInTheWay && silence >= patience && (!mostSilent || silence > mostSilent->silence(now)))
            mostSilent = transfer.get();
    }
    return mostSilent;
}

void URLTransferLine::sendBack(const URLTransfer& transfer) {
    add(takeFromWork(transfer.request().identifier));
}

std::unique_ptr<URLTransfer> URLTransferLine::take(std::uint64_t identifier) {
    if (auto transfer = takeFromWork(identifier))
        return transfer;
    const auto place = _places.find(identifier);
    if (place == _places.end())
        return nullptr;
    const auto [name, turn] = place->second;
    return takeFromLine(name, turn);
}

std::unique_ptr<URLTransfer> URLTransferLine::takeFromWork(std::uint64_t identifier) {
    const auto found = _working.find(identifier);
    if (found == _working.end())
        return nullptr;
    std::unique_ptr<URLTransfer> transfer = std::move(found->second);
    _working.erase(found);
    const std::string& name = transfer->request().host;
    Host& host = _hosts[name];
    --host.working;
    setTurn(name, host);
    return transfer;
}

std::unique_ptr<URLTransfer> URLTransferLine::takeFromLine(const std::string& name, Turn turn) {
    Host& host = _hosts[name];
    const auto found = host.waiting.find(turn);
    std::unique_ptr<URLTransfer> transfer = std::move(found->second);
    host.waiting.erase(found);
    _places.erase(transfer->request().identifier);
    _fresh -= transfer->hasBegun() ? 0 : 1;
    setTurn(name, host);
    return transfer;
}

void URLTransferLine::setTurn(const std::string& name, Host& host) {
    if (host.turn)
        _turns.erase(*host.turn);
    host.turn.reset();
    if (host.waiting.empty() && host.working == 0) {
        _hosts.erase(name);
        return;
    }
    if (host.waiting.empty() || host.working >= _limitPerHost)
        return;
    host.turn = host.waiting.begin()->first;
    _turns.emplace(*host.turn, name);
}

} // namespace brindle
