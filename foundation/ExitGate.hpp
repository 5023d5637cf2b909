#pragma once

#include <atomic>
#include <shared_mutex>

namespace brindle {

/// Keeps threads that live as long as the process out of the libraries once it ends: what libraries clean up at exit, a thread at work
/// would still use. Never to be destroyed, since threads may come until the process is gone. Thread: any.
class ExitGate {
public:
    /// Closes a gate at its end. To be made as a static object after the libraries in question were set up, so that it ends before they do.
    class Closer {
    public:
        explicit Closer(ExitGate& gate) : _gate(gate) {}
        ~Closer() { _gate.close(); }
        Closer(const Closer&) = delete;
        Closer& operator=(const Closer&) = delete;

    private:
        ExitGate& _gate;
    };

    /// To be held while at work; waits forever once the gate is closed.
    std::shared_lock<std::shared_timed_mutex> enter() {
        _isClosed.wait(true);
        return std::shared_lock(_mutex);
    }
    /// Waits, a second at most, until all are out, and lets nobody in again.
    void close();

private:
    std::atomic<bool> _isClosed = false;
    std::shared_timed_mutex _mutex;
};

} // namespace brindle
