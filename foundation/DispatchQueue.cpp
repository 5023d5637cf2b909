#include "foundation/DispatchQueue.hpp"

#include "foundation/ExitGate.hpp"
#include "foundation/RunLoop.hpp"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <future>
#include <mutex>
#include <thread>
#include <utility>

namespace brindle {

struct DispatchQueue::State {
    std::string label;
    bool isMain = false;
    std::mutex mutex;
    std::deque<Block> blocks;
    bool isScheduled = false; ///< in the pool's line, or at work on some thread
};

namespace {

/// A few threads that take queues from one line and run one block of each at a time, so that no queue waits for a long one behind it.
class WorkerPool {
public:
    using Job = std::function<void()>;

    /// Never destroyed: its threads run until the process is gone.
    static WorkerPool& shared() {
        static WorkerPool& pool = *new WorkerPool;
        return pool;
    }

    void add(Job job) {
        {
            const std::lock_guard lock(_mutex);
            _jobs.push_back(std::move(job));
        }
        _added.notify_one();
    }

private:
    WorkerPool() {
        static ExitGate& gate = *new ExitGate;
        static const ExitGate::Closer closer(gate);
        const unsigned count = std::clamp(std::thread::hardware_concurrency(), 2U, 8U);
        for (unsigned i = 0; i < count; ++i)
            std::thread([this] { work(gate); }).detach();
    }

    [[noreturn]] void work(ExitGate& gate) {
        for (;;) {
            std::unique_lock lock(_mutex);
            _added.wait(lock, [this] { return !_jobs.empty(); });
            Job job = std::move(_jobs.front());
            _jobs.pop_front();
            lock.unlock();
            const auto entered = gate.enter();
            std::exchange(job, nullptr)();
        }
    }

    std::mutex _mutex;
    std::condition_variable _added;
    std::deque<Job> _jobs;
};

} // namespace

/// Runs the queue's first block, then lines the queue up again while it has more.
void DispatchQueue::runNext(const std::shared_ptr<State>& state) {
    {
        std::unique_lock lock(state->mutex);
        const Block block = std::move(state->blocks.front());
        state->blocks.pop_front();
        lock.unlock();
        block();
    }
    goOn(state);
}

void DispatchQueue::goOn(const std::shared_ptr<State>& state) {
    const std::lock_guard lock(state->mutex);
    state->isScheduled = !state->blocks.empty();
    if (state->isScheduled)
        WorkerPool::shared().add([state] { runNext(state); });
}

DispatchQueue::DispatchQueue(std::string label) : _state(std::make_shared<State>()) {
    _state->label = std::move(label);
}

const DispatchQueue& DispatchQueue::main() {
    static const DispatchQueue& queue = [] {
        auto* made = new DispatchQueue("main");
        made->_state->isMain = true;
        return std::ref(*made);
    }();
    return queue;
}

void DispatchQueue::async(Block block) const {
    if (_state->isMain) {
        RunLoop::main().perform(std::move(block));
        return;
    }
    const std::lock_guard lock(_state->mutex);
    _state->blocks.push_back(std::move(block));
    if (!_state->isScheduled) {
        _state->isScheduled = true;
        WorkerPool::shared().add([state = _state] { runNext(state); });
    }
}

void DispatchQueue::sync(const Block& block) const {
    if (!_state->isMain && takeOver()) {
        block();
        return goOn(_state);
    }
    std::promise<void> done;
    async([&] {
        block();
        done.set_value();
    });
    done.get_future().wait();
}

/// Where nothing is on the queue it is the caller's for one block, and no other thread has to be woken for that.
bool DispatchQueue::takeOver() const {
    const std::lock_guard lock(_state->mutex);
    return !std::exchange(_state->isScheduled, true);
}

const std::string& DispatchQueue::label() const {
    return _state->label;
}

} // namespace brindle
