#include "foundation/ExitGate.hpp"

#include <chrono>

namespace brindle {

void ExitGate::close() {
    _isClosed = true; // those who come and go would keep the lock from being free
    // Held from here on. Where a thread is stuck, the process ends all the same.
    static_cast<void>(_mutex.try_lock_for(std::chrono::seconds(1)));
}

} // namespace brindle
