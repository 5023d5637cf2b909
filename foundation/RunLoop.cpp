#include "foundation/RunLoop.hpp"

#include "foundation/FatalError.hpp"
#include "foundation/Timer.hpp"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <set>
#include <thread>
#include <utility>

namespace brindle {

namespace {

class SteadyTimeSource : public TimeSource {
public:
    Time now() const override { return std::chrono::steady_clock::now(); }
};

} // namespace

struct RunLoop::State {
    const std::thread::id thread = std::this_thread::get_id();
    std::mutex mutex; ///< guards the three below
    std::condition_variable posted;
    std::deque<Block> blocks;
    bool stopped = false;

    std::function<void()> wakeHandler;
    std::shared_ptr<const TimeSource> timeSource = std::make_shared<SteadyTimeSource>();
    bool timeIsReal = true;
    std::set<std::pair<Time, Timer*>> timers; ///< valid ones only: a timer takes itself out when it ends
};

RunLoop& RunLoop::main() {
    // Never destroyed: other threads may post until the process is gone.
    static RunLoop& loop = *new RunLoop;
    return loop;
}

namespace {

/// Static objects are made on the main thread, before anything can ask for the loop on another.
[[maybe_unused]] const RunLoop& madeOnMainThread = RunLoop::main();

} // namespace

RunLoop::RunLoop() : _state(std::make_unique<State>()) {}
RunLoop::~RunLoop() = default;

void RunLoop::perform(Block block) {
    bool isFirst = false;
    {
        const std::lock_guard lock(_state->mutex);
        isFirst = _state->blocks.empty();
        _state->blocks.push_back(std::move(block));
    }
    // Who was woken for the first block runs all of them.
    if (!isFirst)
        return;
    _state->posted.notify_one();
    if (_state->wakeHandler)
        _state->wakeHandler();
}

bool RunLoop::runPending() {
    std::deque<Block> blocks;
    {
        const std::lock_guard lock(_state->mutex);
        blocks.swap(_state->blocks);
    }
    const bool ranBlocks = !blocks.empty();
    while (!blocks.empty()) {
        // Each block is gone, with all that it holds, before the next one runs.
        const Block block = std::move(blocks.front());
        blocks.pop_front();
        block();
    }
    return fireTimers() || ranBlocks;
}

bool RunLoop::fireTimers() {
    bool fired = false;
    const Time present = now();
    while (!_state->timers.empty() && _state->timers.begin()->first <= present) {
        Timer* const next = _state->timers.begin()->second;
        _state->timers.erase(_state->timers.begin());
        const std::shared_ptr<Timer> timer = next->shared_from_this();
        if (timer->_repeats) {
            const auto period = std::chrono::ceil<Time::duration>(timer->_interval);
            const auto missed = (present - timer->_deadline) / period;
            timer->_deadline += period * (missed + 1);
            _state->timers.emplace(timer->_deadline, next);
        } else {
            timer->_valid = false;
        }
        fired = true;
        const auto block = timer->_block;
        block(*timer);
    }
    return fired;
}

void RunLoop::run() {
    for (;;) {
        runPending();
        {
            const std::lock_guard lock(_state->mutex);
            if (std::exchange(_state->stopped, false))
                return;
        }
        waitForWork(Time::max());
    }
}

bool RunLoop::runUntil(const std::function<bool()>& condition, std::chrono::milliseconds limit) {
    const Time end = std::chrono::steady_clock::now() + limit;
    for (;;) {
        runPending();
        if (condition())
            return true;
        if (std::chrono::steady_clock::now() >= end)
            return false;
        waitForWork(end);
    }
}

void RunLoop::waitForWork(Time limit) {
    // A time source that is not the steady clock moves only by what runs on this thread, so there is nothing to wait for but blocks.
    const Time until = _state->timeIsReal ? std::min(limit, nextDeadline()) : limit;
    std::unique_lock lock(_state->mutex);
    const auto hasWork = [this] { return !_state->blocks.empty() || _state->stopped; };
    if (until == Time::max())
        _state->posted.wait(lock, hasWork);
    else
        _state->posted.wait_until(lock, until, hasWork);
}

void RunLoop::stop() {
    {
        const std::lock_guard lock(_state->mutex);
        _state->stopped = true;
    }
    _state->posted.notify_one();
}

RunLoop::Time RunLoop::nextDeadline() const {
    return _state->timers.empty() ? Time::max() : _state->timers.begin()->first;
}

void RunLoop::setWakeHandler(std::function<void()> handler) {
    _state->wakeHandler = std::move(handler);
}

void RunLoop::setTimeSource(std::shared_ptr<const TimeSource> source) {
    _state->timeIsReal = source == nullptr;
    _state->timeSource = source ? std::move(source) : std::make_shared<SteadyTimeSource>();
}

bool RunLoop::isCurrent() const {
    return std::this_thread::get_id() == _state->thread;
}

RunLoop::Time RunLoop::now() const {
    return _state->timeSource->now();
}

void RunLoop::add(Timer& timer) {
    _state->timers.emplace(timer._deadline, &timer);
}

void RunLoop::remove(Timer& timer) {
    _state->timers.erase({timer._deadline, &timer});
}

void assertMainThread() {
#ifndef NDEBUG
    if (!RunLoop::main().isCurrent())
        fatalError("This belongs to the main thread.");
#endif
}

} // namespace brindle
