#include "foundation/Timer.hpp"

#include <algorithm>

namespace brindle {

namespace {

constexpr Timer::Interval shortest{0.0001};
constexpr Timer::Interval longest{100.0 * 365 * 24 * 3600}; ///< the clock's range holds any moment plus this

} // namespace

std::shared_ptr<Timer> Timer::scheduledTimer(Interval interval, bool repeats, std::function<void(Timer&)> block) {
    assertMainThread();
    std::shared_ptr<Timer> timer(new Timer(interval > Interval::zero() ? interval : shortest, repeats, std::move(block)));
    RunLoop& loop = RunLoop::main();
    timer->_deadline = loop.now() + std::chrono::ceil<RunLoop::Time::duration>(timer->_interval);
    loop.add(*timer);
    return timer;
}

Timer::Timer(Interval interval, bool repeats, std::function<void(Timer&)> block)
    : _interval(std::clamp(interval, shortest, longest)), _repeats(repeats), _block(std::move(block)) {}

Timer::~Timer() {
    invalidate();
}

void Timer::invalidate() {
    if (!_valid)
        return;
    _valid = false;
    RunLoop::main().remove(*this);
}

} // namespace brindle
