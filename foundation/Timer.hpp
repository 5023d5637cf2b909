#pragma once

#include "foundation/RunLoop.hpp"

#include <chrono>
#include <functional>
#include <memory>

namespace brindle {

/// A timer on the main run loop. Its first shot comes one interval after it was made; a repeating one keeps its phase and passes over shots
/// that were missed. It lives as long as its owner holds it, and an invalidated timer never fires again. Thread: main.
class Timer : public std::enable_shared_from_this<Timer> {
public:
    using Interval = std::chrono::duration<double>;

    /// `interval` in seconds; one that is not above zero counts as 0.1 ms.
    static std::shared_ptr<Timer> scheduledTimer(Interval interval, bool repeats, std::function<void(Timer&)> block);
    ~Timer();
    Timer(const Timer&) = delete;
    Timer& operator=(const Timer&) = delete;

    void invalidate();
    bool isValid() const { return _valid; }
    Interval interval() const { return _interval; }

private:
    friend class RunLoop;

    Timer(Interval interval, bool repeats, std::function<void(Timer&)> block);

    Interval _interval;
    bool _repeats;
    bool _valid = true;
    std::function<void(Timer&)> _block;
    RunLoop::Time _deadline{};
};

} // namespace brindle
