#pragma once

#include <condition_variable>
#include <memory>
#include <mutex>

namespace brindle {

/// Keeps threads that live as long as the process out of the libraries once it ends: what libraries clean up at exit, a thread at work
/// would still use. Never to be destroyed, since threads may come until the process is gone. Thread: any.
class ExitGate {
    struct Leaving {
        void operator()(ExitGate* gate) const { gate->leave(); }
    };

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

    /// To be held while at work.
    using Visit = std::unique_ptr<ExitGate, Leaving>;

    /// Waits forever once the gate is closed.
    Visit enter();
    /// Null once the gate is closed.
    Visit tryEnter();
    /// Waits, a second at most, until all are out, and lets nobody in again.
    void close();

private:
    void leave();

    std::mutex _mutex;
    std::condition_variable _changed;
    unsigned _visitors = 0;
    bool _isClosed = false;
};

} // namespace brindle
