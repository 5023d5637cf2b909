#include "foundation/URLTransferLine.hpp"

#include <algorithm>

namespace brindle {

URLTransfer* URLTransferLine::next() {
    if (isFull())
        return nullptr;
    const auto found = nextWaiting();
    if (found == _waiting.end())
        return nullptr;
    std::unique_ptr<URLTransfer> transfer = std::move(*found);
    _waiting.erase(found);
    ++_workingPerHost[transfer->request().host];
    URLTransfer* const lent = transfer.get();
    _working.emplace(lent->request().identifier, std::move(transfer));
    return lent;
}

URLTransferLine::Transfers::iterator URLTransferLine::nextWaiting() {
    const auto found = std::find_if(_waiting.begin(), _waiting.end(),
        [this](const auto& transfer) { return !transfer->hasBegun() && !isFull(transfer->request().host); });
    if (found != _waiting.end())
        return found;
    return std::find_if(_waiting.begin(), _waiting.end(), [this](const auto& transfer) { return !isFull(transfer->request().host); });
}

URLTransfer* URLTransferLine::toSuspend(Time now) const {
    // Where there is room in all, only a host's own transfers stand in the way of those that wait for it.
    const auto standsInTheWay = [this](const URLTransfer& transfer) {
        return std::any_of(_waiting.begin(), _waiting.end(), [&](const auto& waiting) {
            const std::string& host = waiting->request().host;
            return !waiting->hasBegun() && (host == transfer.request().host || (isFull() && !isFull(host)));
        });
    };
    URLTransfer* mostSilent = nullptr;
    for (const auto& [identifier, transfer] : _working) {
        if (transfer->silence(now) >= patience && (!mostSilent || transfer->silence(now) > mostSilent->silence(now)) &&
            standsInTheWay(*transfer))
            mostSilent = transfer.get();
    }
    return mostSilent;
}

void URLTransferLine::sendBack(const URLTransfer& transfer) {
    _waiting.push_back(takeFromWork(transfer.request().identifier));
}

std::unique_ptr<URLTransfer> URLTransferLine::take(std::uint64_t identifier) {
    if (auto transfer = takeFromWork(identifier))
        return transfer;
    const auto found =
        std::find_if(_waiting.begin(), _waiting.end(), [&](const auto& transfer) { return transfer->request().identifier == identifier; });
    if (found == _waiting.end())
        return nullptr;
    std::unique_ptr<URLTransfer> transfer = std::move(*found);
    _waiting.erase(found);
    return transfer;
}

std::unique_ptr<URLTransfer> URLTransferLine::takeFromWork(std::uint64_t identifier) {
    const auto found = _working.find(identifier);
    if (found == _working.end())
        return nullptr;
    std::unique_ptr<URLTransfer> transfer = std::move(found->second);
    _working.erase(found);
    leaveHost(transfer->request().host);
    return transfer;
}

bool URLTransferLine::isCrowded() const {
    return std::any_of(_waiting.begin(), _waiting.end(), [](const auto& transfer) { return !transfer->hasBegun(); });
}

bool URLTransferLine::isFull(const std::string& host) const {
    const auto found = _workingPerHost.find(host);
    return found != _workingPerHost.end() && found->second >= _limitPerHost;
}

void URLTransferLine::leaveHost(const std::string& host) {
    const auto found = _workingPerHost.find(host);
    if (--found->second == 0)
        _workingPerHost.erase(found);
}

} // namespace brindle
