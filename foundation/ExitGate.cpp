#include "foundation/ExitGate.hpp"

#include <chrono>

namespace brindle {

ExitGate::Visit ExitGate::enter() {
    std::unique_lock lock(_mutex);
    _changed.wait(lock, [this] { return !_isClosed; });
    ++_visitors;
    return Visit(this);
}

ExitGate::Visit ExitGate::tryEnter() {
    const std::lock_guard lock(_mutex);
    if (_isClosed)
        return nullptr;
    ++_visitors;
    return Visit(this);
}

void ExitGate::leave() {
    const std::lock_guard lock(_mutex);
    --_visitors;
    _changed.notify_all();
}

void ExitGate::close() {
    std::unique_lock lock(_mutex);
    _isClosed = true;
    // Where a thread is stuck, the process ends all the same.
    _changed.wait_for(lock, std::chrono::seconds(1), [this] { return _visitors == 0; });
}

} // namespace brindle
